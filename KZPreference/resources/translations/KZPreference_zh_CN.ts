<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KZPreference</name>
    <message>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Video devices</source>
        <translation>视频设备</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings</source>
        <translation>Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Start Brenn Mivra Meetings when my computer starts</source>
        <translation>电脑启动时打开 Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Schedule or start Mivra meetings from Microsoft Outlook</source>
        <translation>从 Microsoft Outlook 安排或开始 Mivra 会议</translation>
    </message>
    <message>
        <source>Your setting changes will take effect after you restart Microsoft Outlook.</source>
        <translation>更改将在重新启动 Microsoft Outlook 后生效。</translation>
    </message>
    <message>
        <source>Full name:</source>
        <translation>姓名：</translation>
    </message>
    <message>
        <source>Mivra site URL:</source>
        <translation>Mivra 站点网址：</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>电子邮件地址：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Your name:</source>
        <translation>您的姓名：</translation>
    </message>
    <message>
        <source>Your email address:</source>
        <translation>您的电子邮件地址：</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>电子邮件地址无效</translation>
    </message>
    <message>
        <source>Personal Room:</source>
        <translation>个人会议室：</translation>
    </message>
    <message>
        <source>Video address:</source>
        <translation>视频地址：</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Number of days to show in meetings list:</source>
        <translation>会议列表中显示的天数：</translation>
    </message>
    <message>
        <source>Calendar integration</source>
        <translation>日历集成</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Mivra</source>
        <translation>Mivra</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google</translation>
    </message>
    <message>
        <source>Microsoft Outlook</source>
        <translation>Microsoft Outlook</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>电子邮件：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>电子邮件地址</translation>
    </message>
    <message>
        <source>DOMAIN\username or Email</source>
        <translation>域\用户名或电子邮件</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Invalid email or password</source>
        <translation>电子邮件或密码无效</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>已成功应用</translation>
    </message>
    <message>
        <source>Meeting notifications</source>
        <translation>会议通知</translation>
    </message>
    <message>
        <source>minutes before scheduled start time.</source>
        <translation>分钟前（按预定开始时间计）。</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>minutes after Snooze.</source>
        <translation>分钟后再次提醒。</translation>
    </message>
    <message>
        <source>Upcoming Meeting card on dashboard</source>
        <translation>仪表板上的下一场会议卡片</translation>
    </message>
    <message>
        <source>Automatically discover nearby devices</source>
        <translation>自动发现附近的设备</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign in in your browser. At the end it shows a code; enter it here to continue.</source>
        <translation>请在浏览器中登录。登录结束时会显示一个代码，请在此输入以继续。</translation>
    </message>
    <message>
        <source>Waiting for you to sign in with your browser. This window closes by itself when you are done.</source>
        <translation>正在等待您在浏览器中登录。完成后此窗口会自动关闭。</translation>
    </message>
    <message>
        <source>If no browser opened, open this &amp;address yourself:</source>
        <translation>如果浏览器没有打开，请自行打开此地址(&amp;A)：</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>代码(&amp;C)：</translation>
    </message>
    <message>
        <source>Open the &amp;browser again</source>
        <translation>再次打开浏览器(&amp;B)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>继续(&amp;N)</translation>
    </message>
    <message>
        <source>This is not the expected answer.</source>
        <translation>这不是预期的登录结果。</translation>
    </message>
    <message>
        <source>You are signed in</source>
        <translation>您已登录</translation>
    </message>
    <message>
        <source>You can close this page.</source>
        <translation>您可以关闭此页面。</translation>
    </message>
    <message>
        <source>Sign-in was refused</source>
        <translation>登录被拒绝</translation>
    </message>
    <message>
        <source>Sign-in did not work</source>
        <translation>登录未成功</translation>
    </message>
    <message>
        <source>To try again, go back to Preferences.</source>
        <translation>要重试，请返回“偏好设置”。</translation>
    </message>
    <message>
        <source>Sign-in is not finished yet</source>
        <translation>登录尚未完成</translation>
    </message>
    <message>
        <source>Preferences shows whether it worked.</source>
        <translation>请在“偏好设置”中查看登录结果。</translation>
    </message>
    <message>
        <source>Copy personal room</source>
        <translation>复制个人会议室</translation>
    </message>
    <message>
        <source>Copy video address</source>
        <translation>复制视频地址</translation>
    </message>
    <message>
        <source>Look up account</source>
        <translation>查找账户</translation>
    </message>
    <message>
        <source>Looking up the account…</source>
        <translation>正在查找账户…</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>正在应用账户…</translation>
    </message>
    <message>
        <source>Return looks up the account.</source>
        <translation>按回车键查找账户。</translation>
    </message>
    <message>
        <source>Return applies the account.</source>
        <translation>按回车键应用账户。</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels, Ctrl+Tab leaves the fields.</source>
        <translation>按回车键保存，按 Esc 键取消，按 Ctrl+Tab 离开输入框。</translation>
    </message>
    <message>
        <source>Applied failed</source>
        <translation>应用失败</translation>
    </message>
</context>
</TS>

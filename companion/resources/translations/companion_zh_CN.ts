<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>companion</name>
    <message>
        <source>"%1" is no name of a site. Enter one such as meetings.example.com.</source>
        <translation>“%1”不是站点名称。请输入站点名称，例如 meetings.example.com。</translation>
    </message>
    <message>
        <source>%1 Start the companion again.</source>
        <translation>%1请重新启动 Companion。</translation>
    </message>
    <message>
        <source>%1 asks for a user name and password.</source>
        <translation>%1 要求输入用户名和密码。</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2. Make its folder writable and choose again.</source>
        <translation>无法更改 %1（%2）。请将其文件夹设为可写，然后重新选择。</translation>
    </message>
    <message>
        <source>%1 cannot be deleted. Make its folder writable and try again.</source>
        <translation>无法删除 %1。请将其文件夹设为可写，然后重试。</translation>
    </message>
    <message>
        <source>%1 cannot be reached. Check your network connection and try again.</source>
        <translation>无法连接到 %1。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>%1 did not accept your sign-in. Detect the account again to sign in anew.</source>
        <translation>%1 未接受您的登录。请重新查找账户以再次登录。</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 未及时响应。请稍后重试。</translation>
    </message>
    <message>
        <source>%1 does not accept a user name and password (Basic), the only way supported. Ask your administrator to allow it.</source>
        <translation>%1 不接受用户名和密码（Basic）登录，而这里仅支持这种方式。请让管理员启用它。</translation>
    </message>
    <message>
        <source>%1 does not have what was asked of it. Check its name, or tell your administrator.</source>
        <translation>%1 上没有所请求的内容。请检查名称或联系管理员。</translation>
    </message>
    <message>
        <source>%1 does not let you in. Ask your administrator for access.</source>
        <translation>%1 拒绝您访问。请向管理员申请访问权限。</translation>
    </message>
    <message>
        <source>%1 does not offer the encryption that is needed. Ask your administrator to mend it.</source>
        <translation>%1 不提供所需的加密。请让管理员修正。</translation>
    </message>
    <message>
        <source>%1 gave no usable answer. Check its name, or tell your administrator.</source>
        <translation>%1 未给出可用的响应。请检查名称或联系管理员。</translation>
    </message>
    <message>
        <source>%1 has a problem of its own. Try again later, or tell your administrator.</source>
        <translation>%1 自身出现问题。请稍后重试或联系管理员。</translation>
    </message>
    <message>
        <source>%1 has no Exchange service. Check the address, or ask your administrator.</source>
        <translation>%1 没有 Exchange 服务。请检查地址或咨询管理员。</translation>
    </message>
    <message>
        <source>%1 is an Office 365 account.</source>
        <translation>%1 是 Office 365 账户。</translation>
    </message>
    <message>
        <source>%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or start the companion with --network.</source>
        <translation>%1 在沙盒之外，未进行查询。请使用“试用”页面上的账户或站点，或使用 --network 启动 Companion。</translation>
    </message>
    <message>
        <source>%1 keeps leading to other addresses. Tell your administrator.</source>
        <translation>%1 不断跳转到其他地址。请联系管理员。</translation>
    </message>
    <message>
        <source>%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your administrator.</source>
        <translation>%1 指向未加密或不安全的地址，该地址不会被使用。请联系管理员。</translation>
    </message>
    <message>
        <source>%1 names no page for joining by number. Ask your administrator for its address.</source>
        <translation>%1 未提供按号码入会的页面。请向管理员索取其地址。</translation>
    </message>
    <message>
        <source>%1 names no page of meeting settings. Ask your administrator for its address.</source>
        <translation>%1 未提供会议设置页面。请向管理员索取其地址。</translation>
    </message>
    <message>
        <source>%1 needs your user name and password. Detect the account again and enter them.</source>
        <translation>%1 需要您的用户名和密码。请重新查找账户并输入。</translation>
    </message>
    <message>
        <source>%1 refused the user name or the password. Detect the account again.</source>
        <translation>%1 拒绝了用户名或密码。请重新查找账户。</translation>
    </message>
    <message>
        <source>%1 says: "%2" Check the address, or ask your administrator.</source>
        <translation>%1 返回消息：“%2”。请检查地址或咨询管理员。</translation>
    </message>
    <message>
        <source>%1 was not found. Check its name and your network connection.</source>
        <translation>未找到 %1。请检查名称和网络连接。</translation>
    </message>
    <message>
        <source>A check for updates is already running.</source>
        <translation>正在检查更新，请勿重复操作。</translation>
    </message>
    <message>
        <source>A user name with a colon cannot be sent to %1. Use your email address.</source>
        <translation>无法向 %1 发送含冒号的用户名。请使用您的电子邮件地址。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>应答</translation>
    </message>
    <message>
        <source>Asking %1.</source>
        <translation>正在查询 %1。</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings does not start after login any more.</source>
        <translation>登录后不再启动 Brenn Mivra Meetings。</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings starts after your next login.</source>
        <translation>下次登录后将启动 Brenn Mivra Meetings。</translation>
    </message>
    <message>
        <source>Challenge</source>
        <translation>质询</translation>
    </message>
    <message>
        <source>Challenges, their answers, and addresses that were opened</source>
        <translation>质询及其应答，以及打开过的地址</translation>
    </message>
    <message>
        <source>Checking for updates.</source>
        <translation>正在检查更新。</translation>
    </message>
    <message>
        <source>Choose a row to see its whole content.</source>
        <translation>选择一行以查看其完整内容。</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
    <message>
        <source>Command to host</source>
        <translation>发给主机的命令</translation>
    </message>
    <message>
        <source>Command to plug-in</source>
        <translation>发给插件的命令</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>继续(&amp;N)</translation>
    </message>
    <message>
        <source>Co&amp;ntinue (%1 new)</source>
        <translation>继续（%1 条新事件）(&amp;N)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>复制所选的行；未选择时复制显示的所有行</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Events (*.jsonl)</source>
        <translation>事件 (*.jsonl)</translation>
    </message>
    <message>
        <source>Exchange did not accept the saved user name and password. Detect the account again in Preferences, Meetings.</source>
        <translation>Exchange 不接受已保存的用户名和密码。请在“偏好设置”的“会议”中重新查找账户。</translation>
    </message>
    <message>
        <source>Exchange did not accept this user name and password. Check them, then detect the account again.</source>
        <translation>Exchange 不接受此用户名和密码。请检查后重新查找账户。</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>导出事件</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>Filter by name or content</source>
        <translation>按名称或内容筛选</translation>
    </message>
    <message>
        <source>Forgets all events</source>
        <translation>清除所有事件</translation>
    </message>
    <message>
        <source>Keeps the list as it is while you read</source>
        <translation>在您阅读时保持列表不变</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>钥匙串</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Meetings can be scheduled from Microsoft Outlook once it is started again.</source>
        <translation>重新启动 Microsoft Outlook 后，即可从中安排会议。</translation>
    </message>
    <message>
        <source>Meetings come from Google now.</source>
        <translation>会议现在来自 Google。</translation>
    </message>
    <message>
        <source>Meetings come from Microsoft Outlook now.</source>
        <translation>会议现在来自 Microsoft Outlook。</translation>
    </message>
    <message>
        <source>Meetings come from Mivra now.</source>
        <translation>会议现在来自 Mivra。</translation>
    </message>
    <message>
        <source>Meetings come from no calendar now.</source>
        <translation>现在不再从任何日历获取会议。</translation>
    </message>
    <message>
        <source>Microsoft Outlook schedules no meetings any more once it is started again.</source>
        <translation>重新启动 Microsoft Outlook 后，将无法再从中安排会议。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Nearby video devices are looked for. This companion finds none.</source>
        <translation>将查找附近的视频设备。此 Companion 不会找到任何设备。</translation>
    </message>
    <message>
        <source>Nearby video devices are not looked for any more.</source>
        <translation>不再查找附近的视频设备。</translation>
    </message>
    <message>
        <source>To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email address.</source>
        <translation>要查看接下来的会议，请在“偏好设置”的“会议”中选择 Microsoft Outlook，并输入您的电子邮件地址。</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>没有浏览器打开 %1。请自行打开该地址。</translation>
    </message>
    <message>
        <source>No meetings in the days that you chose.</source>
        <translation>所选天数内没有会议。</translation>
    </message>
    <message>
        <source>No site is known that could have updates. Choose one in Preferences, Account.</source>
        <translation>没有可检查更新的站点。请在“偏好设置”的“账户”中选择一个。</translation>
    </message>
    <message>
        <source>No site is known. Choose one in Preferences, Account.</source>
        <translation>没有站点。请在“偏好设置”的“账户”中选择一个。</translation>
    </message>
    <message>
        <source>Nobody is signed in as %1. Detect the account again to sign in.</source>
        <translation>尚未以 %1 登录。请重新查找账户以登录。</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Paus&amp;e</source>
        <translation>暂停(&amp;E)</translation>
    </message>
    <message>
        <source>Personal room</source>
        <translation>个人会议室</translation>
    </message>
    <message>
        <source>Settings that were written, what changed in them, and keychain items</source>
        <translation>已写入的设置及其变化，以及钥匙串项目</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Store write</source>
        <translation>写入存储</translation>
    </message>
    <message>
        <source>Telemetry</source>
        <translation>遥测</translation>
    </message>
    <message>
        <source>Telemetry cannot be kept in %1: %2. Free some space, or switch it off.</source>
        <translation>无法将遥测数据保存到 %1（%2）。请释放一些空间，或关闭遥测。</translation>
    </message>
    <message>
        <source>The certificate of %1 belongs to another name. Ask your administrator to mend it.</source>
        <translation>%1 的证书属于其他名称。请让管理员修正。</translation>
    </message>
    <message>
        <source>The certificate of %1 has expired. Check the date of this computer, or ask your administrator to renew it.</source>
        <translation>%1 的证书已过期。请检查此计算机的日期，或让管理员更新证书。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid yet. Check the date of this computer.</source>
        <translation>%1 的证书尚未生效。请检查此计算机的日期。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted. Ask your administrator before you go on.</source>
        <translation>%1 的证书不受信任。继续之前请咨询管理员。</translation>
    </message>
    <message>
        <source>The events are copied, without passwords and tokens.</source>
        <translation>已复制事件，其中不含密码和令牌。</translation>
    </message>
    <message>
        <source>The events are in %1, without passwords and tokens.</source>
        <translation>事件已保存到 %1，其中不含密码和令牌。</translation>
    </message>
    <message>
        <source>The events could not be written to %1 (%2). Choose another folder.</source>
        <translation>无法将事件写入 %1（%2）。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. Choose it in Preferences, Meetings.</source>
        <translation>此处不会列出您日历中的会议：此 Companion 仅读取 Microsoft Outlook。请在“偏好设置”的“会议”中选择它。</translation>
    </message>
    <message>
        <source>The sandbox is still starting. Try again in a moment.</source>
        <translation>沙盒仍在启动。请稍后重试。</translation>
    </message>
    <message>
        <source>The search for an Exchange service was given up.</source>
        <translation>已放弃查找 Exchange 服务。</translation>
    </message>
    <message>
        <source>The sign-in of %1 cannot be renewed now. Refresh later.</source>
        <translation>目前无法更新 %1 的登录状态。请稍后刷新。</translation>
    </message>
    <message>
        <source>The sign-in of %1 could not be renewed. Detect the account again to sign in.</source>
        <translation>无法更新 %1 的登录状态。请重新查找账户以登录。</translation>
    </message>
    <message>
        <source>The sign-in of %1 was not renewed in time. Refresh, or detect the account again.</source>
        <translation>%1 的登录状态未及时更新。请刷新，或重新查找账户。</translation>
    </message>
    <message>
        <source>The site has changed meanwhile. Check for updates again.</source>
        <translation>站点已在此期间更改。请重新检查更新。</translation>
    </message>
    <message>
        <source>The site is %1 now.</source>
        <translation>站点现在是 %1。</translation>
    </message>
    <message>
        <source>The site is %1 now. It has not answered yet.</source>
        <translation>站点现在是 %1。它尚未响应。</translation>
    </message>
    <message>
        <source>The warning window</source>
        <translation>警告窗口</translation>
    </message>
    <message>
        <source>This email address has no usable domain. Check it for typing errors.</source>
        <translation>此电子邮件地址的域名不可用。请检查是否有输入错误。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>跟踪</translation>
    </message>
    <message>
        <source>Trace (error)</source>
        <translation>跟踪（错误）</translation>
    </message>
    <message>
        <source>Trace (warning)</source>
        <translation>跟踪（警告）</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>跟踪</translation>
    </message>
    <message>
        <source>Version %1 is available.</source>
        <translation>新版本 %1 可用。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>What host and plug-in ask of each other</source>
        <translation>主机与插件相互发出的请求</translation>
    </message>
    <message>
        <source>What is reported about the use of the window</source>
        <translation>有关窗口使用情况的报告</translation>
    </message>
    <message>
        <source>What the host's services report to the plug-in, the personal room too</source>
        <translation>主机服务向插件报告的内容，包括个人会议室</translation>
    </message>
    <message>
        <source>What the plug-in and the host library do inside</source>
        <translation>插件和主机库的内部活动</translation>
    </message>
    <message>
        <source>Whole content</source>
        <translation>完整内容</translation>
    </message>
    <message>
        <source>Writes the events that are shown to a file</source>
        <translation>将显示的事件写入文件</translation>
    </message>
    <message>
        <source>You are %1 now, %2.</source>
        <translation>您现在是 %1（%2）。</translation>
    </message>
    <message>
        <source>You did not allow %1. Detect again if you trust it.</source>
        <translation>您未允许 %1。如果信任它，请重新查找。</translation>
    </message>
    <message>
        <source>You have no personal room any more.</source>
        <translation>您不再有个人会议室。</translation>
    </message>
    <message>
        <source>You have the newest version.</source>
        <translation>您使用的是最新版本。</translation>
    </message>
    <message>
        <source>Your personal room is %1 now.</source>
        <translation>您的个人会议室现在是 %1。</translation>
    </message>
    <message>
        <source>Your site has news for Preferences. Press Close Preferences, then Preferences.</source>
        <translation>您的站点有新的偏好设置信息。请依次按“关闭偏好设置”和“偏好设置”。</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>无法更改其文件夹</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>Record to</source>
        <translation>保存录制文件</translation>
    </message>
    <message>
        <source>Telemetr&amp;y</source>
        <translation>遥测(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>检查器(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Try out</source>
        <translation>试用(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Meetings</source>
        <translation>会议(&amp;M)</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.</source>
        <translation>会议站点和 Exchange 会在网络和本机沙盒中查找。</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are played by a sandbox on this computer.</source>
        <translation>会议站点和 Exchange 由本机沙盒模拟。</translation>
    </message>
    <message>
        <source>Records (*.jsonl)</source>
        <translation>录制文件 (*.jsonl)</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>已复制：%1</translation>
    </message>
    <message>
        <source>May %1 be asked for your Exchange account?</source>
        <translation>是否允许向 %1 查询您的 Exchange 账户？</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Exchange</translation>
    </message>
    <message>
        <source>&amp;Do not allow</source>
        <translation>不允许(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>允许(&amp;A)</translation>
    </message>
    <message>
        <source>Detect again to enter another user name or password.</source>
        <translation>要输入其他用户名或密码，请重新查找。</translation>
    </message>
    <message>
        <source>The search leads to %1. Allow it only if you know this server: your email address, and later your password, may be sent to it.</source>
        <translation>查找过程指向 %1。仅当您了解此服务器时才允许：您的电子邮件地址以及之后的密码可能会发送给它。</translation>
    </message>
    <message>
        <source>&amp;Guest</source>
        <translation>访客(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Signed in</source>
        <translation>已登录(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what happens to a file, for a report</source>
        <translation>将发生的操作写入文件，以便报告问题</translation>
    </message>
    <message>
        <source>Opens its page in the browser</source>
        <translation>在浏览器中打开其页面</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>检查更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>偏好设置(&amp;P)</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>停止录制(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Join by number</source>
        <translation>按号码入会(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>账户(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>录制(&amp;R)</translation>
    </message>
    <message>
        <source>Get &amp;version %1</source>
        <translation>获取版本 %1(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Close Preferences</source>
        <translation>关闭偏好设置(&amp;C)</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. Unlock the keyring; they are saved then.</source>
        <translation>无法保存密码：密钥环已锁定。密码仅保留到 Brenn Mivra Meetings 退出为止。请解锁密钥环，之后会保存密码。</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. Start or install one, such as GNOME Keyring; they are saved then.</source>
        <translation>无法保存密码：没有密钥环。密码仅保留到 Brenn Mivra Meetings 退出为止。请启动或安装一个密钥环，例如 GNOME Keyring，之后会保存密码。</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings quits. Wait, or restart the keyring; they are saved then.</source>
        <translation>无法保存密码：密钥环没有响应。密码仅保留到 Brenn Mivra Meetings 退出为止。请稍候，或重新启动密钥环，之后会保存密码。</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. Make the folder writable; the next change saves them all.</source>
        <translation>无法保存设置：%1 是只读的。设置仅保留到 Brenn Mivra Meetings 退出为止。请将文件夹设为可写，下次更改时会全部保存。</translation>
    </message>
    <message>
        <source>Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. Free some space; the next change saves them all.</source>
        <translation>无法保存设置：磁盘已满。设置仅保留到 Brenn Mivra Meetings 退出为止。请释放一些空间，下次更改时会全部保存。</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. Check the folder; the next change saves them all.</source>
        <translation>无法将设置保存到 %1。设置仅保留到 Brenn Mivra Meetings 退出为止。请检查该文件夹，下次更改时会全部保存。</translation>
    </message>
    <message>
        <source>Settings could not be read and were set aside as %1. They start anew.</source>
        <translation>无法读取设置，已将其另存为 %1。设置已恢复为默认值。</translation>
    </message>
    <message>
        <source>Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept until Brenn Mivra Meetings quits. Move the file away, then start again.</source>
        <translation>无法读取或保存设置：%1 已损坏或属于其他用户。设置仅保留到 Brenn Mivra Meetings 退出为止。请移走该文件，然后重新启动。</translation>
    </message>
    <message>
        <source>Your next meetings:</source>
        <translation>您接下来的会议：</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Next meetings</source>
        <translation>接下来的会议</translation>
    </message>
    <message>
        <source>Asking for your next meetings.</source>
        <translation>正在查询您接下来的会议。</translation>
    </message>
    <message>
        <source>has started</source>
        <translation>已开始</translation>
    </message>
    <message>
        <source>starts in %1 minutes</source>
        <translation>%1 分钟后开始</translation>
    </message>
    <message>
        <source>starts in 1 minute</source>
        <translation>1 分钟后开始</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>Tomorrow, %1</source>
        <translation>明天 %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and addresses are not.</source>
        <translation>已录制到 %1。请将其附在报告中；密码和令牌已被替换，姓名和地址未替换。</translation>
    </message>
    <message>
        <source>Recording to %1. Do what goes wrong, then press Stop recording.</source>
        <translation>正在录制到 %1。请重现问题，然后按“停止录制”。</translation>
    </message>
    <message>
        <source>Recording has ended: %1. What came before is in %2. Make room, then record again.</source>
        <translation>录制已中止（%1）。之前的内容在 %2 中。请释放一些空间，然后重新录制。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Choose another place for the record.</source>
        <translation>无法写入 %1（%2）。请为录制文件选择其他位置。</translation>
    </message>
    <message>
        <source>The sandbox has ended.</source>
        <translation>沙盒已结束。</translation>
    </message>
    <message>
        <source>The sandbox does not answer.</source>
        <translation>沙盒没有响应。</translation>
    </message>
    <message>
        <source>The sandbox is not running: kz-sandbox is not beside this program.</source>
        <translation>沙盒未运行：kz-sandbox 不在此程序旁边。</translation>
    </message>
    <message>
        <source>The sandbox did not start: %1.</source>
        <translation>沙盒未能启动（%1）。</translation>
    </message>
    <message>
        <source>The sandbox plays nothing: the openssl program may be missing.</source>
        <translation>沙盒未提供任何内容：可能缺少 openssl 程序。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>Change site</source>
        <translation>更改站点</translation>
    </message>
    <message>
        <source>&amp;Use it anyway</source>
        <translation>仍然使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Site of your meeting service:</source>
        <translation>会议服务的站点(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Keep the old site</source>
        <translation>保留原站点(&amp;K)</translation>
    </message>
    <message>
        <source>Asking the site.</source>
        <translation>正在查询站点。</translation>
    </message>
    <message>
        <source>Nothing is written, and nothing is kept.</source>
        <translation>不写入任何内容，也没有保留任何内容。</translation>
    </message>
    <message>
        <source>Telemetry records</source>
        <translation>遥测记录</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Your choices in Preferences, without anything personal, are kept in %1. They stay on this computer.</source>
        <translation>您在偏好设置中的选择（不含个人信息）保存在 %1 中，不会离开本机。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>全部删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keep what I choose</source>
        <translation>保留我的选择(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing is written. What was kept before lies in %1.</source>
        <translation>不写入任何内容。之前保留的内容在 %1 中。</translation>
    </message>
    <message>
        <source>Use t&amp;his site</source>
        <translation>使用此站点(&amp;H)</translation>
    </message>
    <message>
        <source>Copies the selected address, user name or password</source>
        <translation>复制所选的地址、用户名或密码</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>站点</translation>
    </message>
    <message>
        <source>The sandbox is not running. While it runs, this page lists accounts and sites to try.</source>
        <translation>沙盒未运行。运行时，此页面会列出可试用的账户和站点。</translation>
    </message>
    <message>
        <source>Sites, the meeting service to belong to:</source>
        <translation>站点（所属的会议服务）：</translation>
    </message>
    <message>
        <source>Accounts, for Microsoft Outlook in Meetings:</source>
        <translation>账户（用于“会议”中的 Microsoft Outlook）：</translation>
    </message>
    <message>
        <source>All of these are played by a sandbox on this computer. Copy an address, open Preferences, choose Microsoft Outlook in Meetings, paste it and press Return.</source>
        <translation>这些都由本机沙盒模拟。请复制一个地址，打开偏好设置，在“会议”中选择 Microsoft Outlook，粘贴该地址并按回车键。</translation>
    </message>
    <message>
        <source>Sites to try</source>
        <translation>可试用的站点</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>Accounts to try</source>
        <translation>可试用的账户</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>演示内容</translation>
    </message>
    <message>
        <source>Exchange with a password. Any other password is refused, and the third one locks the account until the sandbox is started again</source>
        <translation>使用密码的 Exchange。其他密码会被拒绝，第三次会锁定账户，直到沙盒重新启动</translation>
    </message>
    <message>
        <source>The account is locked from the start: no password is right</source>
        <translation>账户一开始就已锁定：任何密码都不正确</translation>
    </message>
    <message>
        <source>Office 365: sign in in the browser</source>
        <translation>Office 365：在浏览器中登录</translation>
    </message>
    <message>
        <source>Office 365 that takes two seconds longer to sign you in</source>
        <translation>登录多花两秒的 Office 365</translation>
    </message>
    <message>
        <source>Office 365 whose sign-in ends after a minute: you sign in again</source>
        <translation>登录一分钟后失效的 Office 365：需要再次登录</translation>
    </message>
    <message>
        <source>Office 365 that refuses every sign-in</source>
        <translation>拒绝所有登录的 Office 365</translation>
    </message>
    <message>
        <source>Office 365 that does not respond after the sign-in</source>
        <translation>登录后没有响应的 Office 365</translation>
    </message>
    <message>
        <source>Office 365 that responds with an error (500) after the sign-in</source>
        <translation>登录后返回错误 (500) 的 Office 365</translation>
    </message>
    <message>
        <source>Office 365 that responds to the sign-in with a web page</source>
        <translation>以网页回应登录的 Office 365</translation>
    </message>
    <message>
        <source>Office 365 that does not say how long the sign-in is valid</source>
        <translation>不说明登录有效期的 Office 365</translation>
    </message>
    <message>
        <source>Redirects to onprem@corp.sandbox.example</source>
        <translation>重定向到 onprem@corp.sandbox.example</translation>
    </message>
    <message>
        <source>An unencrypted address leads to the server: you are asked first</source>
        <translation>未加密的地址指向服务器：会先询问您</translation>
    </message>
    <message>
        <source>Only a service record names the server</source>
        <translation>只有服务记录 (SRV) 指明服务器</translation>
    </message>
    <message>
        <source>Responds after a second</source>
        <translation>一秒后响应</translation>
    </message>
    <message>
        <source>Never responds</source>
        <translation>从不响应</translation>
    </message>
    <message>
        <source>Responds slowly, byte by byte</source>
        <translation>逐字节缓慢响应</translation>
    </message>
    <message>
        <source>Always responds with an error (500)</source>
        <translation>总是返回错误 (500)</translation>
    </message>
    <message>
        <source>Has a certificate for another name</source>
        <translation>证书属于其他名称</translation>
    </message>
    <message>
        <source>Redirects a hundred times</source>
        <translation>重定向一百次</translation>
    </message>
    <message>
        <source>Requires a sign-in method that is not supported</source>
        <translation>要求不受支持的登录方式</translation>
    </message>
    <message>
        <source>Responds with XML that expands to gigabytes</source>
        <translation>返回展开后达数 GB 的 XML</translation>
    </message>
    <message>
        <source>Responds with a web page</source>
        <translation>返回网页</translation>
    </message>
    <message>
        <source>Has a web site but no Exchange</source>
        <translation>有网站，但没有 Exchange</translation>
    </message>
    <message>
        <source>Works and offers version 9.1.0</source>
        <translation>正常工作，并提供版本 9.1.0</translation>
    </message>
    <message>
        <source>Works; there is no newer version</source>
        <translation>正常工作；没有更新的版本</translation>
    </message>
    <message>
        <source>Works, but each response takes a second</source>
        <translation>可以工作，但每次响应需要一秒</translation>
    </message>
    <message>
        <source>Responds to every request with a web page</source>
        <translation>对每个请求都返回网页</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>KZPreference</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>ミーティング</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Video devices</source>
        <translation>ビデオデバイス</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings</source>
        <translation>Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Start Brenn Mivra Meetings when my computer starts</source>
        <translation>コンピューターの起動時に Brenn Mivra Meetings を開く</translation>
    </message>
    <message>
        <source>Schedule or start Mivra meetings from Microsoft Outlook</source>
        <translation>Microsoft Outlook から Mivra ミーティングを予約または開始する</translation>
    </message>
    <message>
        <source>Your setting changes will take effect after you restart Microsoft Outlook.</source>
        <translation>変更した設定は、Microsoft Outlook の再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Full name:</source>
        <translation>氏名：</translation>
    </message>
    <message>
        <source>Mivra site URL:</source>
        <translation>Mivra サイト URL：</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>メールアドレス：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Your name:</source>
        <translation>お名前：</translation>
    </message>
    <message>
        <source>Your email address:</source>
        <translation>メールアドレス：</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>メールアドレスが正しくありません</translation>
    </message>
    <message>
        <source>Personal Room:</source>
        <translation>パーソナルルーム：</translation>
    </message>
    <message>
        <source>Video address:</source>
        <translation>ビデオアドレス：</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピー済</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Number of days to show in meetings list:</source>
        <translation>ミーティングリストに表示する日数：</translation>
    </message>
    <message>
        <source>Calendar integration</source>
        <translation>カレンダー連携</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
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
        <translation>適用</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>メール：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>DOMAIN\username or Email</source>
        <translation>ドメイン\ユーザー名/メール</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Invalid email or password</source>
        <translation>メールアドレスまたはパスワードが正しくありません</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>適用しました</translation>
    </message>
    <message>
        <source>Meeting notifications</source>
        <translation>ミーティングの通知</translation>
    </message>
    <message>
        <source>minutes before scheduled start time.</source>
        <translation>分前（開始予定時刻を基準）</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>スヌーズ</translation>
    </message>
    <message>
        <source>minutes after Snooze.</source>
        <translation>分後に再通知</translation>
    </message>
    <message>
        <source>Upcoming Meeting card on dashboard</source>
        <translation>ダッシュボードに次のミーティングのカードを表示</translation>
    </message>
    <message>
        <source>Automatically discover nearby devices</source>
        <translation>近くのデバイスを自動的に検出する</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Sign in in your browser. At the end it shows a code; enter it here to continue.</source>
        <translation>ブラウザーでサインインしてください。最後にコードが表示されます。続けるには、ここに入力してください。</translation>
    </message>
    <message>
        <source>Waiting for you to sign in with your browser. This window closes by itself when you are done.</source>
        <translation>ブラウザーでのサインインを待っています。完了すると、このウィンドウは自動的に閉じます。</translation>
    </message>
    <message>
        <source>If no browser opened, open this &amp;address yourself:</source>
        <translation>ブラウザーが開かない場合は、このアドレスを開いてください(&amp;A)：</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>コピー(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>コード(&amp;C)：</translation>
    </message>
    <message>
        <source>Open the &amp;browser again</source>
        <translation>ブラウザーをもう一度開く(&amp;B)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>続ける(&amp;N)</translation>
    </message>
    <message>
        <source>This is not the expected answer.</source>
        <translation>想定した応答ではありません。</translation>
    </message>
    <message>
        <source>You are signed in</source>
        <translation>サインインしました</translation>
    </message>
    <message>
        <source>You can close this page.</source>
        <translation>このページは閉じてかまいません。</translation>
    </message>
    <message>
        <source>Sign-in was refused</source>
        <translation>サインインが拒否されました</translation>
    </message>
    <message>
        <source>Sign-in did not work</source>
        <translation>サインインできませんでした</translation>
    </message>
    <message>
        <source>To try again, go back to Preferences.</source>
        <translation>もう一度試すには、「環境設定」に戻ってください。</translation>
    </message>
    <message>
        <source>Sign-in is not finished yet</source>
        <translation>サインインはまだ完了していません</translation>
    </message>
    <message>
        <source>Preferences shows whether it worked.</source>
        <translation>結果は「環境設定」で確認できます。</translation>
    </message>
    <message>
        <source>Copy personal room</source>
        <translation>パーソナルルームをコピー</translation>
    </message>
    <message>
        <source>Copy video address</source>
        <translation>ビデオアドレスをコピー</translation>
    </message>
    <message>
        <source>Look up account</source>
        <translation>アカウントを検索</translation>
    </message>
    <message>
        <source>Looking up the account…</source>
        <translation>アカウントを検索しています…</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>アカウントを適用しています…</translation>
    </message>
    <message>
        <source>Return looks up the account.</source>
        <translation>Enter キーでアカウントを検索します。</translation>
    </message>
    <message>
        <source>Return applies the account.</source>
        <translation>Enter キーでアカウントを適用します。</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels, Ctrl+Tab leaves the fields.</source>
        <translation>Enter キーで保存、Esc キーでキャンセル、Ctrl+Tab キーで入力欄を離れます。</translation>
    </message>
    <message>
        <source>Applied failed</source>
        <translation>適用できませんでした</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>companion</name>
    <message>
        <source>"%1" is no name of a site. Enter one such as meetings.example.com.</source>
        <translation>「%1」はサイト名ではありません。meetings.example.com のように入力してください。</translation>
    </message>
    <message>
        <source>%1 Start the companion again.</source>
        <translation>%1Companion を起動し直してください。</translation>
    </message>
    <message>
        <source>%1 asks for a user name and password.</source>
        <translation>%1 がユーザー名とパスワードを求めています。</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2. Make its folder writable and choose again.</source>
        <translation>%1 を変更できません（%2）。フォルダーを書き込み可能にして、もう一度選択してください。</translation>
    </message>
    <message>
        <source>%1 cannot be deleted. Make its folder writable and try again.</source>
        <translation>%1 を削除できません。フォルダーを書き込み可能にして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 cannot be reached. Check your network connection and try again.</source>
        <translation>%1 に接続できません。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 did not accept your sign-in. Detect the account again to sign in anew.</source>
        <translation>%1 がサインインを受け付けませんでした。アカウントをもう一度検索して、サインインし直してください。</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 から時間内に応答がありませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 does not accept a user name and password (Basic), the only way supported. Ask your administrator to allow it.</source>
        <translation>%1 はユーザー名とパスワード（Basic）を受け付けません。対応しているのはこの方式だけです。管理者に許可を依頼してください。</translation>
    </message>
    <message>
        <source>%1 does not have what was asked of it. Check its name, or tell your administrator.</source>
        <translation>要求したものが %1 にありません。名前を確認するか、管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 does not let you in. Ask your administrator for access.</source>
        <translation>%1 へのアクセスが許可されていません。管理者にアクセス権を依頼してください。</translation>
    </message>
    <message>
        <source>%1 does not offer the encryption that is needed. Ask your administrator to mend it.</source>
        <translation>%1 は必要な暗号化に対応していません。管理者に修正を依頼してください。</translation>
    </message>
    <message>
        <source>%1 gave no usable answer. Check its name, or tell your administrator.</source>
        <translation>%1 から有効な応答がありませんでした。名前を確認するか、管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 has a problem of its own. Try again later, or tell your administrator.</source>
        <translation>%1 側で問題が発生しています。後でもう一度試すか、管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 has no Exchange service. Check the address, or ask your administrator.</source>
        <translation>%1 に Exchange サービスがありません。アドレスを確認するか、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>%1 is an Office 365 account.</source>
        <translation>%1 は Office 365 アカウントです。</translation>
    </message>
    <message>
        <source>%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or start the companion with --network.</source>
        <translation>%1 はサンドボックスの外にあるため、問い合わせませんでした。「お試し」ページのアカウントまたはサイトを使うか、--network を付けて Companion を起動してください。</translation>
    </message>
    <message>
        <source>%1 keeps leading to other addresses. Tell your administrator.</source>
        <translation>%1 が別のアドレスへの転送を繰り返しています。管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your administrator.</source>
        <translation>%1 の転送先は暗号化されていないなど安全でないため、使用しません。管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 names no page for joining by number. Ask your administrator for its address.</source>
        <translation>%1 には、番号で参加するためのページがありません。管理者にアドレスを問い合わせてください。</translation>
    </message>
    <message>
        <source>%1 names no page of meeting settings. Ask your administrator for its address.</source>
        <translation>%1 には、ミーティング設定のページがありません。管理者にアドレスを問い合わせてください。</translation>
    </message>
    <message>
        <source>%1 needs your user name and password. Detect the account again and enter them.</source>
        <translation>%1 にはユーザー名とパスワードが必要です。アカウントをもう一度検索して、入力してください。</translation>
    </message>
    <message>
        <source>%1 refused the user name or the password. Detect the account again.</source>
        <translation>%1 がユーザー名またはパスワードを拒否しました。アカウントをもう一度検索してください。</translation>
    </message>
    <message>
        <source>%1 says: "%2" Check the address, or ask your administrator.</source>
        <translation>%1 からのメッセージ：「%2」。アドレスを確認するか、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>%1 was not found. Check its name and your network connection.</source>
        <translation>%1 が見つかりません。名前とネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>A check for updates is already running.</source>
        <translation>更新はすでに確認中です。</translation>
    </message>
    <message>
        <source>A user name with a colon cannot be sent to %1. Use your email address.</source>
        <translation>コロンを含むユーザー名は %1 に送信できません。メールアドレスを使用してください。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>Asking %1.</source>
        <translation>%1 に問い合わせています。</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings does not start after login any more.</source>
        <translation>Brenn Mivra Meetings はログイン後に起動しなくなりました。</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings starts after your next login.</source>
        <translation>Brenn Mivra Meetings は次回のログイン後に起動します。</translation>
    </message>
    <message>
        <source>Challenge</source>
        <translation>認証要求</translation>
    </message>
    <message>
        <source>Challenges, their answers, and addresses that were opened</source>
        <translation>認証要求とその応答、開いたアドレス</translation>
    </message>
    <message>
        <source>Checking for updates.</source>
        <translation>更新を確認しています。</translation>
    </message>
    <message>
        <source>Choose a row to see its whole content.</source>
        <translation>行を選択すると、内容全体が表示されます。</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>消去(&amp;L)</translation>
    </message>
    <message>
        <source>Command to host</source>
        <translation>ホスト宛コマンド</translation>
    </message>
    <message>
        <source>Command to plug-in</source>
        <translation>プラグイン宛コマンド</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>再開(&amp;N)</translation>
    </message>
    <message>
        <source>Co&amp;ntinue (%1 new)</source>
        <translation>再開（新着 %1 件）(&amp;N)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>選択した行、または表示中のすべての行をコピーします</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Events (*.jsonl)</source>
        <translation>イベント (*.jsonl)</translation>
    </message>
    <message>
        <source>Exchange did not accept the saved user name and password. Detect the account again in Preferences, Meetings.</source>
        <translation>保存されているユーザー名とパスワードを Exchange が受け付けませんでした。「環境設定」の「ミーティング」でアカウントをもう一度検索してください。</translation>
    </message>
    <message>
        <source>Exchange did not accept this user name and password. Check them, then detect the account again.</source>
        <translation>このユーザー名とパスワードを Exchange が受け付けませんでした。確認してから、アカウントをもう一度検索してください。</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>イベントを書き出す</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>書き出す(&amp;X)…</translation>
    </message>
    <message>
        <source>Filter by name or content</source>
        <translation>名前または内容で絞り込む</translation>
    </message>
    <message>
        <source>Forgets all events</source>
        <translation>すべてのイベントを消去します</translation>
    </message>
    <message>
        <source>Keeps the list as it is while you read</source>
        <translation>読んでいる間、リストの更新を止めます</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>キーチェーン</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Meetings can be scheduled from Microsoft Outlook once it is started again.</source>
        <translation>Microsoft Outlook を再起動すると、Outlook からミーティングを予約できるようになります。</translation>
    </message>
    <message>
        <source>Meetings come from Google now.</source>
        <translation>ミーティングの取得元は Google になりました。</translation>
    </message>
    <message>
        <source>Meetings come from Microsoft Outlook now.</source>
        <translation>ミーティングの取得元は Microsoft Outlook になりました。</translation>
    </message>
    <message>
        <source>Meetings come from Mivra now.</source>
        <translation>ミーティングの取得元は Mivra になりました。</translation>
    </message>
    <message>
        <source>Meetings come from no calendar now.</source>
        <translation>ミーティングを取得するカレンダーはなくなりました。</translation>
    </message>
    <message>
        <source>Microsoft Outlook schedules no meetings any more once it is started again.</source>
        <translation>Microsoft Outlook を再起動すると、Outlook からミーティングを予約できなくなります。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Nearby video devices are looked for. This companion finds none.</source>
        <translation>近くのビデオデバイスを検出します。この Companion では見つかりません。</translation>
    </message>
    <message>
        <source>Nearby video devices are not looked for any more.</source>
        <translation>近くのビデオデバイスを検出しなくなりました。</translation>
    </message>
    <message>
        <source>To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email address.</source>
        <translation>次のミーティングを表示するには、「環境設定」の「ミーティング」で Microsoft Outlook を選択し、メールアドレスを入力してください。</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>%1 を開くブラウザーがありません。アドレスを手動で開いてください。</translation>
    </message>
    <message>
        <source>No meetings in the days that you chose.</source>
        <translation>選択した日数の間にミーティングはありません。</translation>
    </message>
    <message>
        <source>No site is known that could have updates. Choose one in Preferences, Account.</source>
        <translation>更新を確認するサイトがありません。「環境設定」の「アカウント」でサイトを選択してください。</translation>
    </message>
    <message>
        <source>No site is known. Choose one in Preferences, Account.</source>
        <translation>サイトがありません。「環境設定」の「アカウント」でサイトを選択してください。</translation>
    </message>
    <message>
        <source>Nobody is signed in as %1. Detect the account again to sign in.</source>
        <translation>%1 としてサインインしていません。アカウントをもう一度検索して、サインインしてください。</translation>
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
        <translation>一時停止(&amp;E)</translation>
    </message>
    <message>
        <source>Personal room</source>
        <translation>パーソナルルーム</translation>
    </message>
    <message>
        <source>Settings that were written, what changed in them, and keychain items</source>
        <translation>書き込まれた設定とその変更点、キーチェーンの項目</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>ストア</translation>
    </message>
    <message>
        <source>Store write</source>
        <translation>ストアへの書き込み</translation>
    </message>
    <message>
        <source>Telemetry</source>
        <translation>テレメトリ</translation>
    </message>
    <message>
        <source>Telemetry cannot be kept in %1: %2. Free some space, or switch it off.</source>
        <translation>テレメトリを %1 に保存できません（%2）。空き容量を増やすか、テレメトリをオフにしてください。</translation>
    </message>
    <message>
        <source>The certificate of %1 belongs to another name. Ask your administrator to mend it.</source>
        <translation>%1 の証明書は別の名前のものです。管理者に修正を依頼してください。</translation>
    </message>
    <message>
        <source>The certificate of %1 has expired. Check the date of this computer, or ask your administrator to renew it.</source>
        <translation>%1 の証明書は期限切れです。このコンピューターの日付を確認するか、管理者に更新を依頼してください。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid yet. Check the date of this computer.</source>
        <translation>%1 の証明書はまだ有効期間に入っていません。このコンピューターの日付を確認してください。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted. Ask your administrator before you go on.</source>
        <translation>%1 の証明書は信頼されていません。続ける前に管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The events are copied, without passwords and tokens.</source>
        <translation>イベントをコピーしました（パスワードとトークンは含まれません）。</translation>
    </message>
    <message>
        <source>The events are in %1, without passwords and tokens.</source>
        <translation>イベントを %1 に書き出しました（パスワードとトークンは含まれません）。</translation>
    </message>
    <message>
        <source>The events could not be written to %1 (%2). Choose another folder.</source>
        <translation>イベントを %1 に書き出せませんでした（%2）。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. Choose it in Preferences, Meetings.</source>
        <translation>お使いのカレンダーのミーティングはここに表示されません。この Companion が読み取るのは Microsoft Outlook だけです。「環境設定」の「ミーティング」で選択してください。</translation>
    </message>
    <message>
        <source>The sandbox is still starting. Try again in a moment.</source>
        <translation>サンドボックスを起動中です。少し待ってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The search for an Exchange service was given up.</source>
        <translation>Exchange サービスの検索を中止しました。</translation>
    </message>
    <message>
        <source>The sign-in of %1 cannot be renewed now. Refresh later.</source>
        <translation>現在、%1 のサインインを更新できません。後で再読み込みしてください。</translation>
    </message>
    <message>
        <source>The sign-in of %1 could not be renewed. Detect the account again to sign in.</source>
        <translation>%1 のサインインを更新できませんでした。アカウントをもう一度検索して、サインインしてください。</translation>
    </message>
    <message>
        <source>The sign-in of %1 was not renewed in time. Refresh, or detect the account again.</source>
        <translation>%1 のサインインが時間内に更新されませんでした。再読み込みするか、アカウントをもう一度検索してください。</translation>
    </message>
    <message>
        <source>The site has changed meanwhile. Check for updates again.</source>
        <translation>その間にサイトが変わりました。もう一度更新を確認してください。</translation>
    </message>
    <message>
        <source>The site is %1 now.</source>
        <translation>サイトを %1 に変更しました。</translation>
    </message>
    <message>
        <source>The site is %1 now. It has not answered yet.</source>
        <translation>サイトを %1 に変更しました。まだ応答がありません。</translation>
    </message>
    <message>
        <source>The warning window</source>
        <translation>警告ウィンドウ</translation>
    </message>
    <message>
        <source>This email address has no usable domain. Check it for typing errors.</source>
        <translation>このメールアドレスのドメインは使用できません。入力に誤りがないか確認してください。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>Trace (error)</source>
        <translation>トレース（エラー）</translation>
    </message>
    <message>
        <source>Trace (warning)</source>
        <translation>トレース（警告）</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>Version %1 is available.</source>
        <translation>バージョン %1 を入手できます。</translation>
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
        <translation>ホストとプラグインが互いに送る要求</translation>
    </message>
    <message>
        <source>What is reported about the use of the window</source>
        <translation>ウィンドウの使用について報告される内容</translation>
    </message>
    <message>
        <source>What the host's services report to the plug-in, the personal room too</source>
        <translation>ホストのサービスからプラグインへの通知（パーソナルルームを含む）</translation>
    </message>
    <message>
        <source>What the plug-in and the host library do inside</source>
        <translation>プラグインとホストライブラリの内部の動作</translation>
    </message>
    <message>
        <source>Whole content</source>
        <translation>内容全体</translation>
    </message>
    <message>
        <source>Writes the events that are shown to a file</source>
        <translation>表示中のイベントをファイルに書き出します</translation>
    </message>
    <message>
        <source>You are %1 now, %2.</source>
        <translation>現在のユーザーは %1（%2）です。</translation>
    </message>
    <message>
        <source>You did not allow %1. Detect again if you trust it.</source>
        <translation>%1 を許可しませんでした。信頼できる場合は、もう一度検索してください。</translation>
    </message>
    <message>
        <source>You have no personal room any more.</source>
        <translation>パーソナルルームはなくなりました。</translation>
    </message>
    <message>
        <source>You have the newest version.</source>
        <translation>最新バージョンです。</translation>
    </message>
    <message>
        <source>Your personal room is %1 now.</source>
        <translation>パーソナルルームは %1 になりました。</translation>
    </message>
    <message>
        <source>Your site has news for Preferences. Press Close Preferences, then Preferences.</source>
        <translation>サイトから環境設定の新しい情報が届きました。「環境設定を閉じる」、「環境設定」の順に押してください。</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>フォルダーを変更できません</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>Record to</source>
        <translation>記録の保存先</translation>
    </message>
    <message>
        <source>Telemetr&amp;y</source>
        <translation>テレメトリ(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>インスペクター(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Try out</source>
        <translation>お試し(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Meetings</source>
        <translation>ミーティング(&amp;M)</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.</source>
        <translation>ミーティングサイトと Exchange は、ネットワークとこのコンピューターのサンドボックスで検索されます。</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are played by a sandbox on this computer.</source>
        <translation>ミーティングサイトと Exchange は、このコンピューターのサンドボックスが再現しています。</translation>
    </message>
    <message>
        <source>Records (*.jsonl)</source>
        <translation>記録 (*.jsonl)</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>コピーしました：%1</translation>
    </message>
    <message>
        <source>May %1 be asked for your Exchange account?</source>
        <translation>%1 に Exchange アカウントを問い合わせますか？</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Exchange</translation>
    </message>
    <message>
        <source>&amp;Do not allow</source>
        <translation>許可しない(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>許可(&amp;A)</translation>
    </message>
    <message>
        <source>Detect again to enter another user name or password.</source>
        <translation>別のユーザー名またはパスワードを入力するには、もう一度検索してください。</translation>
    </message>
    <message>
        <source>The search leads to %1. Allow it only if you know this server: your email address, and later your password, may be sent to it.</source>
        <translation>検索の途中で %1 に転送されました。このサーバーに心当たりがある場合にだけ許可してください。メールアドレスや、後でパスワードが送信されることがあります。</translation>
    </message>
    <message>
        <source>&amp;Guest</source>
        <translation>ゲスト(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Signed in</source>
        <translation>サインイン済み(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what happens to a file, for a report</source>
        <translation>操作の記録を、報告用のファイルに書き出します</translation>
    </message>
    <message>
        <source>Opens its page in the browser</source>
        <translation>ブラウザーでダウンロードページを開きます</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>更新を確認(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>環境設定(&amp;P)</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>記録を停止(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Join by number</source>
        <translation>番号で参加(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>アカウント(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>記録(&amp;R)</translation>
    </message>
    <message>
        <source>Get &amp;version %1</source>
        <translation>バージョン %1 を入手(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Close Preferences</source>
        <translation>環境設定を閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. Unlock the keyring; they are saved then.</source>
        <translation>パスワードを保存できません。キーリングがロックされています。パスワードは Brenn Mivra Meetings の終了まで保持されます。キーリングのロックを解除すると保存されます。</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. Start or install one, such as GNOME Keyring; they are saved then.</source>
        <translation>パスワードを保存できません。キーリングがありません。パスワードは Brenn Mivra Meetings の終了まで保持されます。GNOME Keyring などを起動またはインストールすると保存されます。</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings quits. Wait, or restart the keyring; they are saved then.</source>
        <translation>パスワードを保存できません。キーリングが応答していません。パスワードは Brenn Mivra Meetings の終了まで保持されます。しばらく待つか、キーリングを再起動すると保存されます。</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. Make the folder writable; the next change saves them all.</source>
        <translation>設定を保存できません。%1 は読み取り専用です。設定は Brenn Mivra Meetings の終了まで保持されます。フォルダーを書き込み可能にすると、次の変更時にすべて保存されます。</translation>
    </message>
    <message>
        <source>Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. Free some space; the next change saves them all.</source>
        <translation>設定を保存できません。ディスクに空きがありません。設定は Brenn Mivra Meetings の終了まで保持されます。空き容量を増やすと、次の変更時にすべて保存されます。</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. Check the folder; the next change saves them all.</source>
        <translation>設定を %1 に保存できません。設定は Brenn Mivra Meetings の終了まで保持されます。フォルダーを確認してください。次の変更時にすべて保存されます。</translation>
    </message>
    <message>
        <source>Settings could not be read and were set aside as %1. They start anew.</source>
        <translation>設定を読み取れなかったため、%1 として退避しました。設定は初期状態に戻ります。</translation>
    </message>
    <message>
        <source>Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept until Brenn Mivra Meetings quits. Move the file away, then start again.</source>
        <translation>設定を読み書きできません。%1 が破損しているか、別のユーザーのものです。設定は Brenn Mivra Meetings の終了まで保持されます。ファイルを移動してから、起動し直してください。</translation>
    </message>
    <message>
        <source>Your next meetings:</source>
        <translation>次のミーティング：</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>ミーティング</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>Next meetings</source>
        <translation>次のミーティング</translation>
    </message>
    <message>
        <source>Asking for your next meetings.</source>
        <translation>次のミーティングを問い合わせています。</translation>
    </message>
    <message>
        <source>has started</source>
        <translation>開始済み</translation>
    </message>
    <message>
        <source>starts in %1 minutes</source>
        <translation>%1 分後に開始</translation>
    </message>
    <message>
        <source>starts in 1 minute</source>
        <translation>1 分後に開始</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>再読み込み(&amp;F)</translation>
    </message>
    <message>
        <source>Tomorrow, %1</source>
        <translation>明日 %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and addresses are not.</source>
        <translation>%1 に記録しました。報告に添付してください。パスワードとトークンは置き換えられていますが、名前とアドレスはそのままです。</translation>
    </message>
    <message>
        <source>Recording to %1. Do what goes wrong, then press Stop recording.</source>
        <translation>%1 に記録しています。問題を再現してから、「記録を停止」を押してください。</translation>
    </message>
    <message>
        <source>Recording has ended: %1. What came before is in %2. Make room, then record again.</source>
        <translation>記録が終了しました（%1）。それまでの内容は %2 にあります。空き容量を増やしてから、記録し直してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Choose another place for the record.</source>
        <translation>%1 に書き込めません（%2）。記録の保存先を変更してください。</translation>
    </message>
    <message>
        <source>The sandbox has ended.</source>
        <translation>サンドボックスが終了しました。</translation>
    </message>
    <message>
        <source>The sandbox does not answer.</source>
        <translation>サンドボックスが応答しません。</translation>
    </message>
    <message>
        <source>The sandbox is not running: kz-sandbox is not beside this program.</source>
        <translation>サンドボックスは実行されていません。kz-sandbox がこのプログラムと同じ場所にありません。</translation>
    </message>
    <message>
        <source>The sandbox did not start: %1.</source>
        <translation>サンドボックスを起動できませんでした（%1）。</translation>
    </message>
    <message>
        <source>The sandbox plays nothing: the openssl program may be missing.</source>
        <translation>サンドボックスが何も提供していません。openssl プログラムがない可能性があります。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>Change site</source>
        <translation>サイトの変更</translation>
    </message>
    <message>
        <source>&amp;Use it anyway</source>
        <translation>このまま使う(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Site of your meeting service:</source>
        <translation>ミーティングサービスのサイト(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Keep the old site</source>
        <translation>以前のサイトを使う(&amp;K)</translation>
    </message>
    <message>
        <source>Asking the site.</source>
        <translation>サイトに問い合わせています。</translation>
    </message>
    <message>
        <source>Nothing is written, and nothing is kept.</source>
        <translation>何も書き込まれず、保存されているものもありません。</translation>
    </message>
    <message>
        <source>Telemetry records</source>
        <translation>テレメトリの記録</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Your choices in Preferences, without anything personal, are kept in %1. They stay on this computer.</source>
        <translation>環境設定での選択は、個人情報を除いて %1 に保存されます。このコンピューターの外には送信されません。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>すべて削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keep what I choose</source>
        <translation>選択内容を保存(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing is written. What was kept before lies in %1.</source>
        <translation>何も書き込まれません。以前に保存された内容は %1 にあります。</translation>
    </message>
    <message>
        <source>Use t&amp;his site</source>
        <translation>このサイトを使う(&amp;H)</translation>
    </message>
    <message>
        <source>Copies the selected address, user name or password</source>
        <translation>選択したアドレス、ユーザー名、パスワードをコピーします</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>サイト</translation>
    </message>
    <message>
        <source>The sandbox is not running. While it runs, this page lists accounts and sites to try.</source>
        <translation>サンドボックスは実行されていません。実行中は、試せるアカウントとサイトがこのページに表示されます。</translation>
    </message>
    <message>
        <source>Sites, the meeting service to belong to:</source>
        <translation>サイト（所属するミーティングサービス）：</translation>
    </message>
    <message>
        <source>Accounts, for Microsoft Outlook in Meetings:</source>
        <translation>アカウント（「ミーティング」の Microsoft Outlook 用）：</translation>
    </message>
    <message>
        <source>All of these are played by a sandbox on this computer. Copy an address, open Preferences, choose Microsoft Outlook in Meetings, paste it and press Return.</source>
        <translation>これらはすべて、このコンピューターのサンドボックスが再現しています。アドレスをコピーし、環境設定を開いて「ミーティング」で Microsoft Outlook を選択し、貼り付けて Enter キーを押してください。</translation>
    </message>
    <message>
        <source>Sites to try</source>
        <translation>試せるサイト</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>コピー(&amp;O)</translation>
    </message>
    <message>
        <source>Accounts to try</source>
        <translation>試せるアカウント</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>確認できること</translation>
    </message>
    <message>
        <source>Exchange with a password. Any other password is refused, and the third one locks the account until the sandbox is started again</source>
        <translation>パスワードが必要な Exchange。ほかのパスワードは拒否され、3 回目でサンドボックスを再起動するまでアカウントがロックされます</translation>
    </message>
    <message>
        <source>The account is locked from the start: no password is right</source>
        <translation>アカウントは最初からロックされており、どのパスワードも通りません</translation>
    </message>
    <message>
        <source>Office 365: sign in in the browser</source>
        <translation>Office 365（ブラウザーでサインイン）</translation>
    </message>
    <message>
        <source>Office 365 that takes two seconds longer to sign you in</source>
        <translation>サインインに 2 秒余計にかかる Office 365</translation>
    </message>
    <message>
        <source>Office 365 whose sign-in ends after a minute: you sign in again</source>
        <translation>サインインが 1 分で切れる Office 365。もう一度サインインします</translation>
    </message>
    <message>
        <source>Office 365 that refuses every sign-in</source>
        <translation>サインインをすべて拒否する Office 365</translation>
    </message>
    <message>
        <source>Office 365 that does not respond after the sign-in</source>
        <translation>サインイン後に応答しない Office 365</translation>
    </message>
    <message>
        <source>Office 365 that responds with an error (500) after the sign-in</source>
        <translation>サインイン後にエラー（500）を返す Office 365</translation>
    </message>
    <message>
        <source>Office 365 that responds to the sign-in with a web page</source>
        <translation>サインインに Web ページを返す Office 365</translation>
    </message>
    <message>
        <source>Office 365 that does not say how long the sign-in is valid</source>
        <translation>サインインの有効期間を示さない Office 365</translation>
    </message>
    <message>
        <source>Redirects to onprem@corp.sandbox.example</source>
        <translation>onprem@corp.sandbox.example に転送します</translation>
    </message>
    <message>
        <source>An unencrypted address leads to the server: you are asked first</source>
        <translation>暗号化されていないアドレスからサーバーに転送されます。先に確認が表示されます</translation>
    </message>
    <message>
        <source>Only a service record names the server</source>
        <translation>サービスレコード（SRV）だけがサーバーを示します</translation>
    </message>
    <message>
        <source>Responds after a second</source>
        <translation>1 秒後に応答します</translation>
    </message>
    <message>
        <source>Never responds</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>Responds slowly, byte by byte</source>
        <translation>1 バイトずつゆっくり応答します</translation>
    </message>
    <message>
        <source>Always responds with an error (500)</source>
        <translation>常にエラー（500）を返します</translation>
    </message>
    <message>
        <source>Has a certificate for another name</source>
        <translation>証明書が別の名前のものです</translation>
    </message>
    <message>
        <source>Redirects a hundred times</source>
        <translation>100 回転送します</translation>
    </message>
    <message>
        <source>Requires a sign-in method that is not supported</source>
        <translation>対応していないサインイン方式を要求します</translation>
    </message>
    <message>
        <source>Responds with XML that expands to gigabytes</source>
        <translation>展開するとギガバイト単位になる XML を返します</translation>
    </message>
    <message>
        <source>Responds with a web page</source>
        <translation>Web ページを返します</translation>
    </message>
    <message>
        <source>Has a web site but no Exchange</source>
        <translation>Web サイトはありますが、Exchange はありません</translation>
    </message>
    <message>
        <source>Works and offers version 9.1.0</source>
        <translation>正常に動作し、バージョン 9.1.0 を提供します</translation>
    </message>
    <message>
        <source>Works; there is no newer version</source>
        <translation>正常に動作します。新しいバージョンはありません</translation>
    </message>
    <message>
        <source>Works, but each response takes a second</source>
        <translation>動作しますが、応答に毎回 1 秒かかります</translation>
    </message>
    <message>
        <source>Responds to every request with a web page</source>
        <translation>すべての要求に Web ページを返します</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Brisel Tavik のバージョン情報</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Update now</source>
        <extracomment>Starts the update of the agent</extracomment>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>バージョン:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>サポート電話番号: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>サポート メール: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>無断複写・転載を禁じます</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>サーバー:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>情報なし</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>前回の通信: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>サポート Web サイト: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik メッセージ</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Success</source>
        <extracomment>Stands in for the message until the host sets one
----------
Name of the large picture for screen readers</extracomment>
        <translation>成功</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik の有効化</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>Tavik を登録するには、デバイス登録メールに記載されたホスト、ポート、トークンを入力し、[登録] ボタンを押してください。</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>このデバイスを管理するには
Tavik の登録が必要です</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>登録が必要です</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>登録</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Label of the field for the name of the server</extracomment>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Token:</source>
        <extracomment>Label of the field for the enrollment token, a row of 32 letters and digits</extracomment>
        <translation>トークン</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Label of the field for the number of the server&apos;s network port</extracomment>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>デバイス登録メールのホスト、ポート、トークンを入力します。</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>リモート コントロール</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in</extracomment>
        <translation>許可</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>リモート ツール</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>リモート アクセス</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>メッセージ</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>応答期限まで残り %n 秒です</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik ログイン</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>ログイン情報をお忘れですか?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>認証が必要です</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <translation>続行するには、Brisel Tavik オンライン アカウントで
ログインする必要があります</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <translation>Brisel Tavik アカウントでログインしてください</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>パスワード</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>認証が必要です</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>続行するには資格情報を入力してください</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>コンピューターの管理者 (管理者特権を持つ Windows アカウント)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Ostrel カスタム パスワード</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>ドメイン</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>パスワードの入力</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>管理者のパスワード</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>カスタム パスワード</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik メッセージ</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Stands in for the message until the host sets one
----------
Name of the large picture for screen readers</extracomment>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: オプション</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシの設定</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>認証</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>タスク バーの通知領域にアイコンを表示する</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>プログラムの更新を自動的にダウンロードしてインストールする</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>ZENT Agent を無効にする...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik メッセージ</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>お待ちください</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik 再起動</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>延期</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 分後</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 分後</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 時間後</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 時間後</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>再通知</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>シャットダウン</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>再起動の理由</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Corvane リモート コントロール</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>リモート ツール</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>ファイル転送</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the remote tools session</extracomment>
        <translation>セッション終了</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>リモート コントロール</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <translation>ファイルのアップロード完了</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <translation>アップロードが中断されました</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <translation>アップロードをキャンセル済み</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <translation>ファイルのダウンロード完了</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <translation>ダウンロードが中断されました</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <translation>ダウンロードをキャンセル済み</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <translation>フォルダーのアップロード完了</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <translation>フォルダーのダウンロード完了</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>ファイルを削除しました</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>ファイル名を変更しました</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>フォルダーを削除しました</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>フォルダー名を変更しました</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>フォルダーを作成しました</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>プロセスを終了しました</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>サービスを開始しました</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>サービスを停止しました</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>サービスを再起動しました</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>サービスを一時停止しました</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>サービスを再開しました</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>セッションを中断しました</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>セッションを再開しました</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>ウィンドウを非表示にする</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>操作ログの表示と非表示を切り替える</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>操作ログ</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: チケットの送信</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>以下の項目に入力し、問題の詳細を記入してください:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>問題の概要</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>部署</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>問題の詳細</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>デバイス情報を含める (メーカー、モデル、シリアル番号、ログイン中のユーザー、
ドメイン/ワークグループ)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>注: 会社名、デバイス名、所有者は既定で含まれます。</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>送信</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>必須</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>必須 (最大 %1 文字)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>チケットの送信</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>チケットは送信されていません</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>すべての変更を破棄しますか?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik ログイン</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>認証が必要です</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>続行するには Zent カスタム パスワードを
入力する必要があります</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Zent カスタム パスワードを入力してください</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>パスワードの入力</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>パスワード</translation>
    </message>
</context>
</TS>

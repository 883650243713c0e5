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
        <translation>All rights reserved</translation>
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
        <translation>最終通信日時: </translation>
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
        <translation>このデバイスを管理するには、
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
        <translation>登録メールのホスト、ポート、トークンを入力してください。</translation>
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
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>許可</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>拒否</translation>
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
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>続行するには、Brisel&#xa0;Tavik オンライン アカウントで
ログインする必要があります</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Brisel&#xa0;Tavik アカウントでログインしてください</translation>
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
        <translation>続行するには、資格情報を入力してください</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>コンピューターの管理者 (管理者権限を持つ Windows アカウント)</translation>
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
        <translation>更新プログラムを自動的にダウンロードしてインストールする</translation>
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
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>値を増やす(&amp;I)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>値を減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここにスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>一番上</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>一番下</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1 ページ左へ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1 ページ上へ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1 ページ右へ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1 ページ下へ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左にスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上にスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右にスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下にスクロール</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Unicode 制御文字の挿入</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
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
        <translation>再起動の理由</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>シャットダウンの理由</translation>
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
        <extracomment>Button: stops the session. May be shortened</extracomment>
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
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>ファイルのアップロード完了</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>アップロード中断</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>アップロード取り消し</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>ファイルのダウンロード完了</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>ダウンロード中断</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>ダウンロード取り消し</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>フォルダーのアップロード完了</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>フォルダーのダウンロード完了</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>ファイル削除</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>ファイル名変更</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>フォルダー削除</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>フォルダー名変更</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>フォルダー作成</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>プロセス終了</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>サービス開始</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>サービス停止</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>サービス再起動</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>サービス一時停止</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>サービス再開</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>セッション一時停止</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>セッション再開</translation>
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
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>セッション終了</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>セッションが開始されました: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>セッションが終了しました: %1</translation>
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
        <translation>続行するには、Zent カスタム パスワードを
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

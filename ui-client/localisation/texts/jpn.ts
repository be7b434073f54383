<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>前回の接続以降、サーバーの証明書が変更されています。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>同期タスクを作成できませんでした。サーバーへの接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>両方の場所にあるファイルはすべて保持され、古いほうのコピーの名前が変更されます。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>サーバーのセキュリティ証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>この共有フォルダーの同期を停止しますか？ファイルはサーバー上に残ります。</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>アカウント：</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>プログラムを閉じない（再起動が必要になる場合があります）(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwellの準備ができました。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>共有フォルダーのクォータを使い切りました。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>ダウンロードが停止されました。</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>このコンピューターに[ProductName]をセットアップします。</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>リレーサービス経由</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwellのセットアップが完了し、同期を開始しました。</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>システムエラーのため、Driftwellはリレーサービスに接続できませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>サーバーとの安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>このコンピューターと同期する、サーバー上の共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択的同期</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}[ProductName]をインストールしています</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>その他のヒント</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>同期タスクを追加</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwellを更新しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Driftwellを開く</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>サーバー：</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1をダウンロードできませんでした。</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>コンピューターは変更されていません。</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>ファイルとフォルダーに同期状態のアイコンを表示する</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>同期するフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>選択を解除したフォルダー内のファイルはこのコンピューターから削除されますが、サーバー上には残ります。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>同期フォルダーがマウントされていないボリューム上にあります。同期を続行するには、ボリュームを接続してください。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1個の項目</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Driftwellへようこそ！</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>更新に失敗しました。以前のバージョンが引き続き使用されます。</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期中...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1が更新されました</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName]セットアップ</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwellを初期化しています...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>ウィザードは完了前に中止されました。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>サーバーからの応答をDriftwellが認識できません。サーバーとクライアントを最新バージョンに更新してください。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>このフォルダーの同期方向が、サーバーで設定されている方向と異なります。</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1を処理中</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>フォルダー%1を作成できませんでした。</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>カスタムセットアップ</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>サーバーでDriftwellがサポートしていない古いバージョンが実行されています。サーバーを更新してください。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>同期方向がサーバーの設定と異なります。</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>サーバーはこのIPアドレスからの接続を受け付けていません。管理者にアクセスを依頼してください。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1個のファイルを同期中</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>サーバーのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1について</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>このコンピューターのディスクがいっぱいです。同期は一時停止されています。</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>このフォルダーの同期を停止</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>このコンピューターのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>ネットワーク接続が切断されました。Driftwellは自動的に再接続します。</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>ウィザードを閉じるには、「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>新しいバージョンの準備ができました。クリックしてインストールしてください。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>このフォルダーには読み取りアクセス権しかありません。ファイルはダウンロードされますが、アップロードされることはありません。</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>リレーサービス経由の接続を許可する</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>この共有フォルダーはサーバー上に存在しなくなりました。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>このバージョンのDriftwellはサーバーに対して古すぎます。最新バージョンをインストールしてください。</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>インストールせずにウィザードを終了するには、「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>このフォルダーに必要な空き容量がこのコンピューターにありません。</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>リレーサービスがサーバーへの経路を見つけられませんでした。サーバーがオンラインであることを確認してください。</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>サーバー上の共有フォルダーがマウントされていません。サーバーでマウントしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>フォルダーが空ではありません。フォルダー内のファイルはサーバー上のファイルとマージされます。</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>リレーサービス経由では共有リンクを使用できません。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>サーバーのクォータを使い切りました。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前変更済み</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>除外するフォルダー...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>ローカルの同期データベースが破損しています。再構築するには、フォルダーのリンクを解除してから再度リンクしてください。</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>[ProductName]のインストールを修復するには、「修復」をクリックしてください。</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>確認コード：</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>このファイルの以前のバージョンを一覧表示できません。</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>このフォルダーの同期は管理者によって無効にされています。</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>同期が終了したら：</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwellは%1回試行した後、処理を中止しました。ネットワークを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Driftwellフォルダーにファイルを入れると、サーバーやほかのコンピューターにも表示されます。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>接続が不安定です</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>ウィザードはインストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>設定を確認し、「完了」をクリックして同期を開始してください。</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>[ProductName]をインストールするには管理者権限が必要です。このまま続行しますか？</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>フォルダー%1はすでに別の同期タスクで同期されています。</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>このアドレスのサーバーが変更されました。同期タスクを再度リンクしてください。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>サーバーでリレーサービスが無効になっています。直接接続するか、サービスを有効にしてください。</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwellはサーバーに接続されていません。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>接続の種類</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>サーバー上とこのコンピューター上のフォルダーを自分で選択します。</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>同期する内容を変更するには、設定を開いてください。</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>サーバーのセキュリティ証明書が変更されました。新しい証明書を信頼できることを確認してください。</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>サーバーとの接続が閉じられました。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwellはこのフォルダーのインデックスを作成しています。</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート：</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>この一覧内のフォルダーは同期されません。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>バックアップ先：</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>サーバー上のホームフォルダーを、このコンピューター上のDriftwellフォルダーと同期します。</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>システムエラーのため、フォルダーの一覧を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>[ProductName]を変更、修復、または削除します。</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>このフォルダー内のファイルはサーバーと同期されます。</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName]をインストールできませんでした。コンピューターは変更されていません。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>次のプログラムが、[ProductName]セットアップで更新する必要のあるファイルを使用しています。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>インストールを修復します</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName]のインストール準備完了</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>次のサイズより大きいファイルは同期しない：</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語：</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>このコンピューターの容量</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>管理者が2段階認証を必須にしています。まずアカウントで2段階認証を有効にしてください。</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>同期するファイルを選択</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>プログラムを削除します</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>同期中：%1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>ログイン時にDriftwellを起動する</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>開始するには、サーバーにサインインしてください。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>共有フォルダーの同期を有効にできませんでした。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>暗号化された接続</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>終了：</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName]には変更できる機能がありません。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の%1ページ</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>クイックセットアップでは推奨設定を使用します。カスタムセットアップでは各設定を個別に選択できます。</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>ファイルが両方で変更された場合：</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>このファイルには以前のバージョンがありません。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>緑のチェックマークは、ファイルが最新の状態であることを示します。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>バックアップするフォルダーを選択</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>除外するファイル：</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>リンクを解除すると、このサーバーとの同期が停止します。ファイルはこのコンピューターに残ります。続行しますか？</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Finderに表示</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>エラーのため、[ProductName]セットアップウィザードが中断されました。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>同期状態をひと目で確認</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>このコンピューターから[ProductName]を削除します。同期済みのファイルはそのまま残ります。</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>このフォルダーは同期に使用できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1さんがフォルダー「%2」を共有しました。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>ほかの同期タスクで使用されていないフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>同期済みのファイルとフォルダーは削除されません。</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>選択的同期を使用するには、Driftwellを更新してください。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>暗号化された接続（HTTPS）を使用する</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>フォルダーを変更...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0を指定すると無制限になります。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>同期状態を表示</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>このコンピューターでファイルを削除しても、サーバー上のファイルは残す</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>サーバー上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>このコンピューター上</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1をダウンロードしました。</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>選択内容を確認するには「戻る」を、ウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>セットアップでお困りですか？オンラインガイドを開いてください。</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>これらのプログラムを閉じて「再試行」をクリックするか、「無視」をクリックしてそのまま続行してください。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意しません(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwellがフォルダー内の変更を検出し、同期しています。</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>フォルダーが選択されていません。</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>同期する別のフォルダーの組み合わせを選択してください。</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>サーバーのホスト名、IPアドレス、またはリレーIDを入力してください。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}[ProductName]セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>[ProductName]に対して実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>このユーザー名はこのサーバーでは無効です。</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>リレーIDが無効です。IDを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>問題が発生しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Driftwellフォルダー</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1に送る</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>[ProductName]をインストールするには、この契約の条項に同意する必要があります。</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>このコンピューターとサーバーのリンクを解除してもよろしいですか？</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>メニューバーから操作</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>そこから同期を一時停止したり、設定を開いたりできます。</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>リレー接続ではファイルを共有できません。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>ネットワークドライブ上の変更は、検出が遅れる場合があります。</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%2個中%1個のファイルを処理済み</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>接続の種類を検出しています...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>選択したフォルダーはサーバーにコピーされます。このコンピューターでファイルを削除しても、そのバックアップは削除されません。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>サーバーの概要</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>プロキシサーバーのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>ローカルフォルダー</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>このファイルはほかのプログラムによってロックされています。</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>スタンバイ中</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}[ProductName]メンテナンスウィザードへようこそ</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName]のインストールをキャンセルしてもよろしいですか？</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>このコンピューターはすでにこのサーバーにリンクされています。</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>共有リンクをコピー</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nバージョン：\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>ユーザー名またはパスワードが正しくありません。もう一度入力してください。</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>この共有フォルダーを一覧から削除しますか？</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>ファイルはご自身のサーバーに保存されます。</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>共有フォルダーを一覧から削除できませんでした。</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>プライベート、高速、そして常に最新</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>これらのフォルダーの同期を停止</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>最近の変更</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>サーバーとの接続が不安定です。Driftwellは再接続を試み続けています。</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードは、[ProductName]をコンピューターにインストールします。\n続行するには「次へ」を、セットアップウィザードを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>次の使用許諾契約をよくお読みください。</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>同期アクティビティ</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1さんがフォルダーを共有しました</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1日前</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>確認コードが正しくないか、有効期限が切れています。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名：</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>共有フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>このフォルダーは読み取り専用です。このコンピューターでの変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>パラメーターが無効です。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>最終アップロード：%1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>接続設定は後で変更できます。</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>ファイル拡張子</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Driftwellへようこそ</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>フォルダーのリンク時にファイルをマージする</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>バックアップを完了できませんでした。バックアップ先のフォルダーを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>開始：</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>これらの拡張子のファイルは同期されません。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>サーバーのアドレスとアカウント情報を入力してください。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>このフォルダーは、すでに同期されているフォルダーと重複しています。</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>インストールのキャンセル</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>サポートされていないバージョン</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>このフォルダーに必要なクォータがサーバーに残っていません。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>ポートには1～65535の数値を指定してください。</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>ダブルクリックして拡張子を編集</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}[ProductName]のインストールに失敗しました</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>ウィザードは[ProductName]を修復する準備ができました。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード済み</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>常にサーバー上のファイルを使用する</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>パスワードを確認しています...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>インストールする[ProductName]の機能を変更できます。</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>接続テスト</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>ネットワークエラーのため、フォルダーの一覧を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>これらのフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>アイコンをダブルクリックするとDriftwellが開きます。</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>ホームフォルダーにDriftwellフォルダーを作成する</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Driftwellフォルダーを開く</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>今すぐ[ProductName]を起動する(&amp;S)</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>セキュリティの警告</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>もう一度同期を試す</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>このバージョンの[ProductName]はすでにインストールされています。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>接続しました。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>プロキシサーバーにはパスワードが必要</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>インストールされている機能を変更します</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>続行すると、後でコンピューターの再起動が必要になる場合があります。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>同期するフォルダーを選択</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>このネットワーク上のサーバーを検索</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>このフォルダー内のファイルはサーバー上のファイルとマージされます。何も削除されません。</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>誤ってファイルを変更しましたか？サーバーから以前のバージョンを復元できます。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwellを起動しています...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>同期フォルダーを変更</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>ポート番号は1～65535の範囲で指定してください。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>マウントポイントを使用できません</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>準備が整いました</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>変更が保存されていません。今すぐ保存しますか？</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwellは、このコンピューターとサーバー上のファイルを常に同期された状態に保ちます。</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>このフォルダー内のファイルをサーバー上のファイルとマージしますか？</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>この同期タスクを削除してもよろしいですか？同期済みのファイルはこのコンピューターに残ります。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>同期しないファイルの種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード済み</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>このコンピューター上の同期フォルダー</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>拡張子はドットで始まります（例：.tmp）</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>ウィザードは[ProductName]を削除する準備ができました。</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>変更を保存しました。</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>メニューバーのDriftwellアイコンをクリックすると、同期中の内容を確認できます。</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>同期しないファイル名：</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>フォルダー：</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>プロキシを手動で設定する</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>リレーサービスが無効です</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>接続が不安定です。Driftwellは接続を試み続けています。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>このコンピューターから[ProductName]を削除するには、「削除」をクリックしてください。</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>このフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName]のインストールが完了しました</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>わかりました</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>ほかのプログラムによってロックされています</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>同期するフォルダーを、サーバー上とこのコンピューター上で1つずつ選択してください。</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>もう一度試すには、後でインストーラーを再度実行してください。ウィザードを閉じるには「完了」をクリックしてください。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>サーバーに接続</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>同期できる共有フォルダーは最大%1個です。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロード中...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>同期されないファイルにアイコンを表示する</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の%1ページ</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>ウィザードが[ProductName]をインストールしています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Driftwellを終了</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>このコンピューターの空き容量が不足しています。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>変更はありません。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>この項目の共有リンクを作成できません。</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>プロキシサーバーのユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>過去30日間</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>変更...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>メンテナンスウィザードでは、このコンピューター上の[ProductName]を修復または削除できます。\n続行するには「次へ」を、終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>両方のファイルを保持し、古いほうの名前を変更する</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意します(&amp;A)</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>以前のバージョン</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1はすでに実行中です。</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>「インストール」をクリックして開始してください。設定を確認または変更するには、「戻る」をクリックしてください。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>%1 MBを超えるファイルは同期されません。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}[ProductName]のインストールが中断されました</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>接続の詳細</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>青い矢印は、ファイルが同期中であることを示します。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>別のサーバーをリンク</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Driftwellフォルダーがサーバーと同期されました。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>転送キュー</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>セットアップの種類を選択</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwellを起動できませんでした。コンピューターを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>[ProductName]の見つからないファイルや破損したファイル、ショートカット、レジストリエントリを修復します。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName]は、選択したフォルダーをサーバーと同期された状態に保ちます。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>マージ</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName]は正常にインストールされました。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>この共有フォルダーにアクセスする権限がありません。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか%1件</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状態情報</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>同期モード：</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>読み取り専用フォルダー</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>このフォルダーは別のサーバーに属しています。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>現在このファイルはダウンロードできません。</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>ワイルドカードを含まないパターンは、ファイル名全体と一致する必要があります。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>除外するファイル名</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>新しいバージョンの[ProductName]がすでにインストールされています。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>サーバーのストレージクォータを使い切りました。空き容量を確保するか、クォータの増量を依頼してください。</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>プログラムを自動的に閉じて、後で再起動する(&amp;C)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>ローカルの同期フォルダーが見つかりません。移動または削除された可能性があります。</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>ウィザードはファイルをコピーし、システムを更新しています。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>両方のファイルを保持し、このコンピューターのコピーにコンピューター名を付ける</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>このコンピューターの空き容量が不足しています。同期を続行するには空き容量を確保してください。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>サーバーのストレージクォータを使い切りました。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>同期できるフォルダーがありません。</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>競合が見つかりました。両方のバージョンを保持しました。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>[ProductName]の削除準備完了</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>新しい言語はDriftwellの再起動後に適用されます。</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>フォルダーは使用中です</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Driftwellを更新しています...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>使用許諾契約</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>サーバー上</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1はマウントポイントのため、同期フォルダーとして使用できません。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>更新が必要なファイルの一部が使用中です。</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>表示するイベントはありません。</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>このコンピューターでこのフォルダーに加えた変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同期履歴</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>この共有フォルダーには読み取りアクセス権しかありません。</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>モノクロのメニューバーアイコンを使用する</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>サーバーの証明書が変更されました。新しい証明書を信頼しますか？</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>認証アプリに表示された確認コードを入力してください。</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>このフォルダーへのアクセス権がありません。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新しい同期タスク</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>「*」は任意の文字に一致します（例：~*.tmp）</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>数分かかる場合があります。</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>最後に変更されたファイルを保持する</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>このフォルダーはすでに別の共有フォルダーと同期されています。</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>自分のサーバーと同期</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>このネットワークを検索</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>お使いのすべてのコンピューターで、同じファイルを。</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>サーバー上のフォルダーを利用できません。</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>セットアップが完了しました。Driftwellはファイルを同期しています。</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName]の修復準備完了</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>後で[ProductName]をインストールするには、インストーラーを再度実行してください。</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>1つのフォルダーは1つの同期タスクにのみ属することができます。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>伺服器的憑證自上次連線後已變更。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>無法建立同步任務。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>兩邊都有的檔案會全部保留，較舊的副本會重新命名。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去 7 天</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>無法驗證伺服器的安全憑證。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>要停止同步此共用資料夾嗎？其中的檔案會保留在伺服器上。</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>帳號：</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>不要關閉程式（可能需要重新啟動）(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell 已準備就緒。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>共用資料夾的配額已用完。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>下載已停止。</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>在這台電腦上安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>透過中繼服務</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell 已設定完成，並已開始同步。</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>由於系統錯誤，Driftwell 無法連線至中繼服務。請稍後再試。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>無法與伺服器建立安全連線。</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>選擇要將伺服器上的哪些共用資料夾與這台電腦同步。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}正在安裝 [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>新增同步任務</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>正在更新 Driftwell，請稍候。</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>開啟 Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>伺服器：</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>無法下載 %1。</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>您的電腦未做任何變更。</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密碼：</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在檔案和資料夾上顯示同步狀態圖示</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>選擇要同步的資料夾。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>取消選取的資料夾中的檔案會從這台電腦移除，但仍會保留在伺服器上。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>同步資料夾所在的磁碟區未掛載。請連接該磁碟區以繼續同步。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>歡迎使用 Driftwell！</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>更新失敗。目前仍在使用先前的版本。</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 已更新</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell 正在初始化...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>精靈在完成之前已停止。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>變更(&amp;C)</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>驗證失敗</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Driftwell 無法識別伺服器的回應。請將伺服器和用戶端更新至最新版本。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>此資料夾的同步方向與伺服器上的設定不同。</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>正在處理 %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消連結</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>無法建立資料夾 %1。</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>自訂設定</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>伺服器執行的是 Driftwell 不支援的舊版本。請更新伺服器。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>同步方向與伺服器的設定不同。</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>伺服器不接受來自此 IP 位址的連線。請向管理員申請存取權限。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 個檔案</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>伺服器的磁碟已滿。</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>關於 %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>這台電腦的磁碟已滿。同步已暫停。</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>停止同步此資料夾</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>這台電腦的磁碟已滿。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消連結...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>網路連線已中斷。Driftwell 會自動重新連線。</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>按一下「完成」以關閉精靈。</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>新版本已就緒。按一下即可安裝。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>您對此資料夾只有讀取權限。檔案只會下載，不會上傳。</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>允許透過中繼服務連線</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>伺服器上已不存在此共用資料夾。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>此版本的 Driftwell 對伺服器而言太舊。請安裝最新版本。</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>按一下「取消」即可結束精靈，不進行安裝。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>這台電腦上的可用空間不足以存放此資料夾。</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>中繼服務找不到通往您伺服器的路徑。請確認伺服器已上線。</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>伺服器上的共用資料夾未掛載。請在伺服器上掛載後再試一次。</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>此資料夾不是空的。其中的檔案將與伺服器上的檔案合併。</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>透過中繼服務連線時無法使用共用連結。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在伺服器上的配額已用完。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>排除的資料夾...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>本機同步資料庫已損毀。請取消連結此資料夾後再重新連結，以重建資料庫。</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>按一下「修復」以修復 [ProductName] 的安裝。</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>驗證碼：</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>無法列出此檔案的先前版本。</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>管理員已關閉此資料夾的同步。</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>同步完成時：</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell 嘗試 %1 次後已放棄。請檢查網路，然後再試一次。</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>將檔案放入 Driftwell 資料夾，檔案就會出現在您的伺服器和其他電腦上。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>精靈已備妥開始安裝所需的一切。</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>請檢查您的設定，然後按一下「完成」開始同步。</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>安裝 [ProductName] 需要系統管理員權限。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>資料夾 %1 已由其他同步任務進行同步。</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>請選擇您要執行的操作。</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>此位址上的伺服器已變更。請重新連結同步任務。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任務</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>伺服器上的中繼服務已關閉。請直接連線，或開啟此服務。</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell 未連線至伺服器。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>連線類型</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>自行選擇伺服器上和這台電腦上的資料夾。</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>若要變更同步的內容，請開啟設定。</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>伺服器的安全憑證已變更。請確認您信任新的憑證。</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>與伺服器的連線已關閉。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell 正在為此資料夾建立索引。</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>連接埠：</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>此清單中的資料夾永遠不會同步。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>備份至：</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>將伺服器上的個人資料夾與這台電腦上的 Driftwell 資料夾同步。</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>由於系統錯誤，無法載入資料夾清單。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>變更、修復或移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>此資料夾中的檔案會與伺服器同步。</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>無法安裝 [ProductName]。您的電腦未做任何變更。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>下列程式正在使用 [ProductName] 安裝程式必須更新的檔案。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修復安裝</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>準備安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>不同步大於此大小的檔案：</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>這台電腦上的空間</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>管理員要求使用兩步驟驗證。請先為您的帳號啟用此功能。</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>選擇要同步的檔案</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>移除程式</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>登入時啟動 Driftwell</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>登入您的伺服器以開始使用。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>無法為此共用資料夾啟用同步。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>加密連線</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>至：</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] 沒有可變更的功能。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>快速設定會使用建議的設定。自訂設定可讓您逐一選擇各項設定。</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>當檔案在兩端都有變更時：</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>此檔案沒有先前版本。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選擇...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>綠色勾號表示檔案已是最新狀態。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>選擇要備份的資料夾</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>排除的檔案：</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>取消連結後，將停止與此伺服器同步。您的檔案會保留在這台電腦上。要繼續嗎？</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在 Finder 中顯示</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>發生錯誤，[ProductName] 安裝精靈已停止。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>同步狀態一目了然</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>從這台電腦移除 [ProductName]。您已同步的檔案會保留在原處。</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>此資料夾無法用於同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 與您共用了資料夾「%2」。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>請選擇未被其他同步任務使用的資料夾。</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>您已同步的檔案和資料夾不會被刪除。</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>請更新 Driftwell 以使用選擇性同步。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>使用加密連線（HTTPS）</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>變更資料夾...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 表示不限制。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>顯示同步狀態</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>在這台電腦上刪除檔案時，保留伺服器上的檔案</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>選擇伺服器上的資料夾。</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>在這台電腦上</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 已下載完成。</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>按一下「上一步」以檢視您的選擇，或按一下「取消」結束精靈。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>設定時需要協助嗎？請開啟線上指南。</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>請關閉這些程式並按一下「重試」，或按一下「忽略」以直接繼續。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系統的代理伺服器設定</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>檔案使用中</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>我不接受授權合約中的條款(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell 偵測到您的資料夾有所變更，正在進行同步。</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>未選取任何資料夾。</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>選擇另一組要保持同步的資料夾。</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>輸入伺服器的主機名稱、IP 位址或中繼 ID。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}歡迎使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>選擇要對 [ProductName] 執行的操作。</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>此使用者名稱在這台伺服器上無效。</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>中繼 ID 無效。請檢查 ID 後再試一次。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>發生錯誤。請稍後再試。</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>您的 Driftwell 資料夾</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>傳送至 %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>若要安裝 [ProductName]，您必須接受此合約的條款。</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>確定要取消這台電腦與伺服器的連結嗎？</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>從選單列操作</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>您可以在那裡暫停同步或開啟設定。</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>透過中繼連線時無法共用檔案。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>系統可能會延遲偵測到網路磁碟機上的變更。</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>已處理 %1 個檔案，共 %2 個</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>正在偵測連線類型...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>您選擇的資料夾會複製到伺服器。在這台電腦上刪除檔案不會刪除其備份。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>伺服器概覽</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>請輸入代理伺服器的位址和連接埠。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本機資料夾</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>此檔案已被其他程式鎖定。</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>待命中</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}歡迎使用 [ProductName] 維護精靈</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>確定要取消安裝 [ProductName] 嗎？</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>這台電腦已連結至此伺服器。</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>複製共用連結</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\n版本：\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>使用者名稱或密碼不正確。請重新輸入。</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>要從清單中移除此共用資料夾嗎？</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>您的檔案始終保存在您自己的伺服器上。</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>無法從清單中移除此共用資料夾。</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>私密、快速，永遠保持最新</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>停止同步這些資料夾</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>最近變更</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>與伺服器的連線不穩定。Driftwell 會持續嘗試重新連線。</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈將在您的電腦上安裝 [ProductName]。\n按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>同步活動</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>瀏覽先前版本</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 與您共用了一個資料夾</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>驗證碼不正確或已過期。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>使用者名稱：</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自訂範圍</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>此資料夾為唯讀。在這台電腦上所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>參數無效。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上傳：%1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>您稍後可以變更連線設定。</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>副檔名</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>歡迎使用 Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>連結資料夾時合併檔案</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>無法完成備份。請檢查目的地資料夾，然後再試一次。</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>從：</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>具有這些副檔名的檔案不會同步。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>請輸入伺服器的位址和您的帳號資訊。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>此資料夾與已在同步的資料夾重疊。</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>取消安裝</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>權限不足</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>不支援的版本</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>伺服器上的剩餘配額不足以容納此資料夾。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>連接埠必須是 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>按兩下以編輯副檔名</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}[ProductName] 安裝失敗</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>精靈已準備好修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>一律使用伺服器上的檔案</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>正在檢查密碼...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>可讓您變更要安裝哪些 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>測試連線</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>由於網路錯誤，無法載入資料夾清單。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>恢復同步這些資料夾</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>按兩下圖示即可開啟 Driftwell。</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>在我的個人資料夾中建立 Driftwell 資料夾</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>開啟 Driftwell 資料夾</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>立即啟動 [ProductName](&amp;S)</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>再次嘗試同步</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>此版本的 [ProductName] 已經安裝。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理伺服器需要密碼</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>變更已安裝的功能</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>如果繼續，之後可能需要重新啟動電腦。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>在此網路上搜尋伺服器</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>此資料夾中的檔案將與伺服器上的檔案合併。不會刪除任何內容。</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>不小心變更了檔案嗎？從伺服器還原先前的版本。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell 正在啟動...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>連接埠號碼必須介於 1 到 65535 之間。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>掛載點無法使用</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就緒</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>您的變更尚未儲存。要立即儲存嗎？</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell 會讓這台電腦和您伺服器上的檔案保持同步。</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>要將此資料夾中的檔案與伺服器上的檔案合併嗎？</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>確定要移除此同步任務嗎？已同步的檔案會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>不同步的檔案類型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>這台電腦上的同步資料夾</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>副檔名以點開頭，例如 .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>精靈已準備好移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>您的變更已儲存。</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>按一下選單列中的 Driftwell 圖示，即可查看正在同步的內容。</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>不同步的檔案名稱：</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>資料夾：</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>中繼服務已停用</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>連線不穩定。Driftwell 會持續嘗試。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>按一下「移除」即可從這台電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>恢復同步此資料夾</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] 已安裝完成</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>已被其他程式鎖定</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>選擇伺服器上的一個資料夾和這台電腦上的一個資料夾，讓兩者保持同步。</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>若要再試一次，請稍後重新執行安裝程式。按一下「完成」以關閉精靈。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>連線至您的伺服器</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>您最多只能同步 %1 個共用資料夾。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>在未同步的檔案上顯示圖示</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>精靈正在安裝 [ProductName]，請稍候。</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>結束 Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>這台電腦上沒有足夠的可用空間。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未做任何變更。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>無法為此項目建立共用連結。</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>請輸入代理伺服器的使用者名稱。</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>過去 30 天</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>變更...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>維護精靈可讓您修復或移除這台電腦上的 [ProductName]。\n按一下「下一步」繼續，或按一下「取消」結束。</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>保留兩個檔案，並重新命名較舊的檔案</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>我接受授權合約中的條款(&amp;A)</translation>
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
        <translation>先前版本</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 已在執行中。</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>按一下「安裝」開始。若要檢視或變更任何設定，請按一下「上一步」。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>大於 %1 MB 的檔案不會同步。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}[ProductName] 安裝已中斷</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>連線詳細資訊</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>藍色箭頭表示檔案正在同步。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>連結其他伺服器</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>您的 Driftwell 資料夾現在已與伺服器同步。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>篩選器</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>傳輸佇列</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>選擇設定類型</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell 無法啟動。請重新啟動電腦，然後再試一次。</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>修復 [ProductName] 遺失或損毀的檔案、捷徑和登錄項目。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安裝更新</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] 會讓您選擇的資料夾與您的伺服器保持同步。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>已成功安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>您沒有存取此共用資料夾的權限。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 個</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>狀態資訊</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>同步模式：</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>此資料夾屬於其他伺服器。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>目前無法下載此檔案。</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>不含萬用字元的模式必須與完整的檔案名稱相符。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的檔案名稱</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>已安裝較新版本的 [ProductName]。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>您在伺服器上的儲存配額已用完。請釋放空間，或申請更大的配額。</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>自動關閉程式，並於稍後重新啟動(&amp;C)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本機同步資料夾。該資料夾可能已被移動或刪除。</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>精靈正在複製檔案並更新您的系統。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>保留兩個檔案，並在來自這台電腦的副本名稱中加上電腦名稱</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>這台電腦上沒有足夠的可用空間。請釋放空間以繼續同步。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>已更新的檔案</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下載記錄</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>您在伺服器上的儲存配額已用完。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>沒有可同步的資料夾。</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>發現衝突。已保留兩個版本。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>準備移除 [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>新語言將在 Driftwell 重新啟動後生效。</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>資料夾已在使用中</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>正在更新 Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>授權合約</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>在伺服器上</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 是掛載點，無法用作同步資料夾。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分需要更新的檔案正在使用中。</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>沒有可顯示的事件。</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>在這台電腦上對此資料夾所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步記錄</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>您對此共用資料夾只有讀取權限。</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>使用單色選單列圖示</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速設定</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>伺服器的憑證已變更。要信任新的憑證嗎？</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>請輸入驗證器應用程式中的驗證碼。</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>您沒有此資料夾的存取權限。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新的同步任務</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>使用 * 比對任意字元，例如 ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在檢查檔案...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>保留最後變更的檔案</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>此資料夾已與其他共用資料夾同步。</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>與您自己的伺服器同步</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>搜尋此網路</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>您的檔案，在您使用的每一台電腦上。</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>伺服器上的資料夾無法使用。</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>設定完成。Driftwell 正在同步您的檔案。</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>準備修復 [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>若要稍後安裝 [ProductName]，請重新執行安裝程式。</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>一個資料夾只能屬於一個同步任務。</translation>
    </message>
</context>
</TS>

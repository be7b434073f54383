<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>自上次连接以来，服务器的证书已更改。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>无法创建同步任务。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
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
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>两边都存在的文件会全部保留，较旧的副本将被重命名。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>无法验证服务器的安全证书。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>要停止同步此共享文件夹吗？其中的文件会保留在服务器上。</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>账户：</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>不关闭程序（可能需要重新启动）(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell 已准备就绪。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>共享文件夹的配额已用完。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>下载已停止。</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>在这台电脑上安装 [ProductName]。</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>通过中继服务</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell 已设置完成，并已开始同步。</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>由于系统错误，Driftwell 无法连接到中继服务。请稍后重试。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>无法与服务器建立安全连接。</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>选择要将服务器上的哪些共享文件夹与这台电脑同步。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}正在安装 [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>正在更新 Driftwell，请稍候。</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>打开 Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>服务器：</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>无法下载 %1。</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>您的电脑未做任何更改。</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在文件和文件夹上显示同步状态图标</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>选择要同步的文件夹。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，谢谢</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>取消选择的文件夹中的文件将从这台电脑上移除，但仍保留在服务器上。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>同步文件夹所在的卷未挂载。请连接该卷以继续同步。</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>欢迎使用 Driftwell！</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>更新失败。仍在使用之前的版本。</translation>
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
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell 正在初始化...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>向导在完成之前已停止。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Driftwell 无法识别服务器的响应。请将服务器和客户端更新到最新版本。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>此文件夹的同步方向与服务器上的设置不一致。</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>正在处理 %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>自定义设置</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>服务器运行的是 Driftwell 不支持的旧版本。请更新服务器。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>同步方向与服务器上的设置不一致。</translation>
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
        <translation>服务器不接受来自此 IP 地址的连接。请向管理员申请访问权限。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 个文件</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>服务器磁盘已满。</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>这台电脑的磁盘已满。同步已暂停。</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>停止同步此文件夹</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>这台电脑的磁盘已满。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消关联...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>网络连接已断开。Driftwell 将自动重新连接。</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>单击“完成”关闭向导。</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>新版本已就绪。单击即可安装。</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>您对此文件夹只有读取权限。文件只会下载，不会上传。</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>允许通过中继服务连接</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>服务器上已不存在此共享文件夹。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>此版本的 Driftwell 对服务器而言太旧。请安装最新版本。</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>单击“取消”可退出向导而不进行安装。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>这台电脑上的可用空间不足以存放此文件夹。</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>中继服务找不到通往您服务器的路径。请确认服务器在线。</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>服务器上的共享文件夹未挂载。请在服务器上挂载后重试。</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>此文件夹不为空。其中的文件将与服务器上的文件合并。</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>通过中继服务连接时无法使用共享链接。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在服务器上的配额已用完。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>排除的文件夹...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>本地同步数据库已损坏。请取消关联此文件夹，然后重新关联以重建数据库。</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>单击“修复”以修复 [ProductName] 的安装。</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>验证码：</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>无法列出此文件的历史版本。</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>管理员已关闭此文件夹的同步。</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>同步完成后：</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell 尝试 %1 次后已放弃。请检查网络，然后重试。</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>将文件放入 Driftwell 文件夹，它们就会出现在您的服务器和其他电脑上。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>向导已准备好开始安装所需的一切。</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>请检查您的设置，然后单击“完成”开始同步。</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>安装 [ProductName] 需要管理员权限。仍要继续吗？</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
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
        <translation>暂停</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>文件夹 %1 已由其他同步任务同步。</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>此地址上的服务器已更改。请重新关联同步任务。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>服务器上的中继服务已关闭。请直接连接，或开启该服务。</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell 未连接到服务器。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>连接类型</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>自行选择服务器上和这台电脑上的文件夹。</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>如需更改同步的内容，请打开设置。</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>服务器的安全证书已更改。请确认您信任新证书。</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>与服务器的连接已关闭。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell 正在为此文件夹建立索引。</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>此列表中的文件夹永远不会同步。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>备份到：</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>将服务器上的个人文件夹与这台电脑上的 Driftwell 文件夹同步。</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>由于系统错误，无法加载文件夹列表。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>更改、修复或移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>此文件夹中的文件将与服务器同步。</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>无法安装 [ProductName]。您的电脑未做任何更改。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大文件大小</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>以下程序正在使用 [ProductName] 安装程序必须更新的文件。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修复安装</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>准备安装 [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>不同步大于此大小的文件：</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>这台电脑上的空间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>管理员要求使用两步验证。请先为您的账户启用该功能。</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>选择要同步的文件</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>移除程序</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>登录时启动 Driftwell</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>登录您的服务器以开始使用。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>无法为此共享文件夹启用同步。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>加密连接</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>至：</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] 没有可更改的功能。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>快速设置使用推荐的设置。自定义设置可让您逐项选择。</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>当文件在两端都被修改时：</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>此文件没有历史版本。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>选择...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>绿色对勾表示文件已是最新。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>选择要备份的文件夹</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>排除的文件：</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>取消关联后将停止与此服务器同步。您的文件会保留在这台电脑上。要继续吗？</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在 Finder 中显示</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>发生错误，[ProductName] 安装向导已停止。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理服务器</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>同步状态一目了然</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>从这台电脑上移除 [ProductName]。您已同步的文件将保留在原处。</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>此文件夹不能用于同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 与您共享了文件夹“%2”。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>请选择未被其他同步任务使用的文件夹。</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>您已同步的文件和文件夹不会被删除。</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>请更新 Driftwell 以使用选择性同步。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>使用加密连接（HTTPS）</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>更改文件夹...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 表示不限制。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>显示同步状态</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>在这台电脑上删除文件时，保留服务器上的文件</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>选择服务器上的文件夹。</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>在这台电脑上</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 已下载完成。</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>单击“上一步”查看您的选择，或单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>设置时需要帮助？请打开在线指南。</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>请关闭这些程序并单击“重试”，或单击“忽略”直接继续。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系统代理服务器设置</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>文件正在使用中</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell 检测到您的文件夹有更改，正在进行同步。</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>未选择文件夹。</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>选择另一组要保持同步的文件夹。</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>输入服务器的主机名、IP 地址或中继 ID。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>选择要对 [ProductName] 执行的操作。</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>该用户名在此服务器上无效。</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>中继 ID 无效。请检查 ID 后重试。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>出现错误。请稍后重试。</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>您的 Driftwell 文件夹</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>发送到 %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>要安装 [ProductName]，您必须接受此协议中的条款。</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>确定要取消这台电脑与服务器的关联吗？</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>从菜单栏操作</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>您可以在那里暂停同步或打开设置。</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>通过中继连接时无法共享文件。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>网络驱动器上的更改可能会延迟检测到。</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>已处理 %1 个文件，共 %2 个</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>正在检测连接类型...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>您选择的文件夹会复制到服务器。在这台电脑上删除文件不会删除其备份。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>服务器概览</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本地文件夹</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>此文件已被其他程序锁定。</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}更改、修复或移除安装</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>待机中</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理服务器</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}欢迎使用 [ProductName] 维护向导</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>确定要取消安装 [ProductName] 吗？</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>这台电脑已关联到此服务器。</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>复制共享链接</translation>
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
        <translation>用户名或密码不正确。请重新输入。</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>要从列表中移除此共享文件夹吗？</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>您的文件始终保存在您自己的服务器上。</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>无法从列表中移除此共享文件夹。</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>私密、快速、始终最新</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>停止同步这些文件夹</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>最近更改</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>与服务器的连接不稳定。Driftwell 正在持续尝试重新连接。</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导将在您的电脑上安装 [ProductName]。\n单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>同步活动</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>浏览历史版本</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 与您共享了一个文件夹</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>验证码不正确或已过期。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自定义范围</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>此文件夹为只读。在这台电脑上所做的更改不会上传。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>参数无效。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上传：%1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>您以后可以更改连接设置。</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>文件扩展名</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>欢迎使用 Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>关联文件夹时合并文件</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>无法完成备份。请检查目标文件夹，然后重试。</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>从：</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>带有这些扩展名的文件不会同步。</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>请输入服务器地址和您的账户信息。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>此文件夹与已在同步的文件夹重叠。</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>取消安装</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>版本不受支持</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>服务器上的剩余配额不足以容纳此文件夹。</translation>
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
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>双击以编辑扩展名</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}[ProductName] 安装失败</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>向导已准备好修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>始终使用服务器上的文件</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>正在检查密码...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>可让您更改要安装的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>测试连接</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>由于网络错误，无法加载文件夹列表。</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>恢复同步这些文件夹</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>双击图标即可打开 Driftwell。</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>在我的个人文件夹中创建 Driftwell 文件夹</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>打开 Driftwell 文件夹</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>立即启动 [ProductName](&amp;S)</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>重新尝试同步</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>已安装此版本的 [ProductName]。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理服务器需要密码</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>更改已安装的功能</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>如果继续，之后可能需要重新启动电脑。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>在此网络中搜索服务器</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>此文件夹中的文件将与服务器上的文件合并。不会删除任何内容。</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>误改了文件？可以从服务器还原较早的版本。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell 正在启动...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>端口号必须介于 1 到 65535 之间。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>挂载点不可用</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>您的更改尚未保存。要立即保存吗？</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell 让这台电脑和您服务器上的文件保持同步。</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>要将此文件夹中的文件与服务器上的文件合并吗？</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>确定要移除此同步任务吗？已同步的文件会保留在这台电脑上。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>不同步的文件类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>这台电脑上的同步文件夹</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>扩展名以点开头，例如 .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>向导已准备好移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>您的更改已保存。</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>单击菜单栏中的 Driftwell 图标，即可查看正在同步的内容。</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>不同步的文件名：</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手动设置代理服务器</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>中继服务已禁用</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>连接不稳定。Driftwell 正在持续尝试。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>单击“移除”即可从这台电脑上移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>恢复同步此文件夹</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] 已安装完成</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>已被其他程序锁定</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>选择服务器上的一个文件夹和这台电脑上的一个文件夹，让两者保持同步。</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>如需重试，请稍后再次运行安装程序。单击“完成”关闭向导。</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>连接到您的服务器</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>您最多只能同步 %1 个共享文件夹。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>在未同步的文件上显示图标</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>向导正在安装 [ProductName]，请稍候。</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>退出 Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>这台电脑上的可用空间不足。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未做任何更改。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>无法为此项目创建共享链接。</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>请输入代理服务器的用户名。</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>更改...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>维护向导可帮助您修复或移除这台电脑上的 [ProductName]。\n单击“下一步”继续，或单击“取消”退出。</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>保留两个文件，并重命名较旧的文件</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>历史版本</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 已在运行。</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>单击“安装”开始安装。如需查看或更改任何设置，请单击“上一步”。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>大于 %1 MB 的文件不会同步。</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}[ProductName] 安装已中断</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>连接详细信息</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>蓝色箭头表示文件正在同步。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>关联其他服务器</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>您的 Driftwell 文件夹现已与服务器同步。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>过滤器</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>传输队列</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>选择设置类型</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell 无法启动。请重新启动电脑，然后重试。</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>修复 [ProductName] 缺失或损坏的文件、快捷方式和注册表项。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] 会让您选择的文件夹与您的服务器保持同步。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] 已成功安装。</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>您没有访问此共享文件夹的权限。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>同步模式：</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>此文件夹属于其他服务器。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>暂时无法下载此文件。</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>不含通配符的模式必须与完整文件名匹配。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的文件名</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>已安装较新版本的 [ProductName]。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>这台电脑</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>您在服务器上的存储配额已用完。请释放空间，或申请更大的配额。</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>自动关闭程序并在之后重新启动(&amp;C)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本地同步文件夹。它可能已被移动或删除。</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>向导正在复制文件并更新您的系统。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>保留两个文件，并在来自这台电脑的副本名称中添加电脑名称</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>这台电脑上的可用空间不足。请释放空间以继续同步。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>已更新的文件</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>您在服务器上的存储配额已用完。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>没有可同步的文件夹。</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>发现冲突。两个版本均已保留。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>准备移除 [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>新语言将在 Driftwell 重新启动后生效。</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>文件夹已在使用中</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>正在更新 Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>在服务器上</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 是挂载点，不能用作同步文件夹。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>没有可显示的事件。</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>在这台电脑上对此文件夹所做的更改不会上传。</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步历史记录</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>您对此共享文件夹只有读取权限。</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>使用单色菜单栏图标</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速设置</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>服务器的证书已更改。要信任新证书吗？</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>请输入身份验证器应用中的验证码。</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>您没有此文件夹的访问权限。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新的同步任务</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>使用 * 匹配任意字符，例如 ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>保留最后修改的文件</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>此文件夹已与其他共享文件夹同步。</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>与您自己的服务器同步</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>搜索此网络</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>您的文件，在您使用的每台电脑上。</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>服务器上的文件夹不可用。</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>设置完成。Driftwell 正在同步您的文件。</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>准备修复 [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>如需稍后安装 [ProductName]，请再次运行安装程序。</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>一个文件夹只能属于一个同步任务。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>The server's certificate has changed since the last connection.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Couldn't create the sync task. Check your connection to the server and try again.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Show the tutorial</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Files that exist in both places are kept, and the older copy is renamed.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Last 7 days</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Couldn't verify the server's security certificate.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Stop syncing this shared folder? Its files stay on the server.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Account:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Don't close the programs (a restart may be needed)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell is ready.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>The quota of the shared folder is used up.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Download stopped.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Set up [ProductName] on this computer.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Through the relay service</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell is set up and has started syncing.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell couldn't reach the relay service because of a system error. Try again later.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Couldn't establish a secure connection to the server.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Choose which shared folders on the server to sync with this computer.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Installing [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>More tips</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Add a sync task</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell is being updated. Please wait.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Open Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Couldn't download %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Your computer hasn't been changed.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Show sync status icons on files and folders</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Choose the folder to sync.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Files in folders you deselect are removed from this computer but stay on the server.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>The sync folder is on a volume that isn't mounted. Connect the volume to continue syncing.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Welcome to Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>The update failed. You're still on the previous version.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Syncing...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 was updated</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell is initializing...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>The wizard was stopped before it finished.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Change</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>The server answered in a way Driftwell doesn't understand. Update the server and the client to the latest version.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>The sync direction of this folder differs from the one set on the server.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Processing %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Couldn't create the folder %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Custom setup</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>The server runs an older version that Driftwell doesn't support. Update the server.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>The sync direction differs from the server's setting.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Back</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>The server doesn't accept connections from this IP address. Ask your administrator for access.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Syncing %1 files</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>The disk on the server is full.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>The disk on this computer is full. Syncing is paused.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Stop syncing this folder</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>The disk on this computer is full.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Network connection lost. Driftwell will reconnect automatically.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Click Finish to close the wizard.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>A new version is ready. Click to install.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>You only have read access to this folder. Files will be downloaded but never uploaded.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Allow connections through the relay service</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>The shared folder no longer exists on the server.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>This version of Driftwell is too old for the server. Install the latest version.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Click Cancel to exit the wizard without installing.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>There isn't enough free space on this computer for this folder.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>The relay service couldn't find a route to your server. Check that the server is online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>The shared folder on the server isn't mounted. Mount it on the server and try again.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>The folder isn't empty. Its files will be merged with the files on the server.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Sharing links aren't available through the relay service.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Your quota on the server is used up.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Excluded folders...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Click Repair to fix the installation of [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Verification code:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Can't list previous versions of this file.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Syncing of this folder was turned off by your administrator.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>When syncing is finished:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell stopped trying after %1 attempts. Check your network and try again.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Put files into the Driftwell folder and they appear on your server and your other computers.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Repair</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Connection unstable</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>The wizard has everything it needs to begin the installation.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Check your settings, then click Done to start syncing.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>You need administrator rights to install [ProductName]. Continue anyway?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finished</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>The folder %1 is already synced by another task.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choose what you want to do.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>The server at this address has changed. Link the sync task again.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>The relay service is turned off on the server. Connect directly or turn the service on.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell isn't connected to a server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Connection type</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Choose the folders on the server and on this computer yourself.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>To change what is synced, open the settings.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>The server's security certificate has changed. Confirm that you trust the new certificate.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Disconnected from the server.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell is indexing this folder.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update available</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Folders in this list are never synced.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Back up to:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Sync your home folder on the server with a Driftwell folder on this computer.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Couldn't load the folder list because of a system error.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Change, repair, or remove [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Files in this folder are synced with the server.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] couldn't be installed. Your computer hasn't been changed.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>The following programs use files that [ProductName] Setup must update.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Repair the installation</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Don't sync files larger than:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Space on this computer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Your administrator requires two-step verification. Turn it on for your account first.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Choose files to sync</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Remove the program</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Now syncing: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Start Driftwell when I sign in</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Sign in to your server to get started.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Couldn't turn on syncing for this shared folder.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Encrypted connection</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] has no features that can be changed.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Quick setup uses the recommended settings. Custom setup lets you choose each one.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>When a file was changed on both sides:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>This file has no earlier versions.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Select...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>A green check mark means a file is up to date.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Choose the folders to back up</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Excluded files:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>An error stopped the [ProductName] Setup Wizard.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>Sync status at a glance</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Removes [ProductName] from this computer. Your synced files stay where they are.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>You can't use this folder for syncing. Choose another one.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 shared the folder "%2" with you.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Choose a folder that no other sync task uses.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Your synced files and folders aren't deleted.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Update Driftwell to use selective sync.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Use an encrypted connection (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Change folder...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Choose folders</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 means no limit.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Show sync status</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Keep files on the server when I delete them on this computer</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Choose a folder on the server.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>On this computer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 has been downloaded.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Click Back to review your choice, or Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Need help setting up? Check out the online guide.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Close these programs and click Retry, or click Ignore to continue anyway.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Use the system proxy settings</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Files in use</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>I &amp;don't accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell noticed changes in your folders and is syncing them.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>No folder selected.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Choose another pair of folders to keep in sync.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Enter the server's hostname, IP address, or relay ID.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Select the operation you want to perform on [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>This username isn't valid on this server.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>The relay ID isn't valid. Check the ID and try again.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Something went wrong. Try again later.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Your Driftwell folder</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Send to %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>To install [ProductName], you must accept the terms of this agreement.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Unlink this computer from the server?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Work from the menu bar</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>From there you can pause syncing or open your settings.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Files can't be shared through a relay connection.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Changes on network drives may be detected with a delay.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 of %2 files processed</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detecting the connection type...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>The folders you choose are copied to the server. Deleting a file on this computer doesn't delete its backup.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Server overview</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Enter the address and the port of the proxy server.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Local folder</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>This file is locked by another program.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Change, repair, or remove installation</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Standing by</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>No proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnect</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Cancel the installation of [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>This computer is already linked to this server.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Copy a sharing link</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersion:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Incorrect username or password. Try again.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Remove this shared folder from the list?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Your files stay on your own server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Couldn't remove the shared folder from the list.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Private, fast, and always up to date</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Stop syncing these folders</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Recently changed</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>The connection to the server is unstable. Driftwell keeps trying to reconnect.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Sync activity</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Browse previous versions</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 shared a folder with you</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>That verification code is incorrect or has expired.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Username:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Custom range</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>This folder is read-only. Changes on this computer aren't uploaded.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Invalid parameter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Last upload: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>You can change the connection settings later.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>File extension</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Welcome to Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Merge files when linking a folder</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Couldn't complete the backup. Check the destination folder and try again.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Files with these extensions aren't synced.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Enter the address of your server and your account details.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>This folder overlaps with a folder that is already synced.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Cancel installation</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Version not supported</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>There isn't enough quota left on the server for this folder.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>The port must be a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Double-click to edit the extension</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}The installation of [ProductName] failed</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>The wizard is ready to repair [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Always use the file from the server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Checking your password...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Lets you change which features of [ProductName] are installed.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Test connection</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Couldn't load the folder list because of a network error.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sync these folders again</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignore</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Double-click the icon to open Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Create a Driftwell folder in my home folder</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Open the Driftwell folder</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Start [ProductName] now</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Security warning</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Try to sync again</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>This version of [ProductName] is already installed.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connected.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>The proxy server requires a password</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Change the installed features</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>If you continue, you may need to restart your computer.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Choose folders to sync</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Search for servers on this network</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Files in this folder will be merged with the files on the server. Nothing is deleted.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Changed a file by mistake? Restore an earlier version from the server.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell is starting...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Change sync folder</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>The port number must be between 1 and 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Mount point not available</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>You're all set</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>You have unsaved changes. Save them now?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell keeps the files on this computer and on your server in sync.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Merge the files in this folder with those on the server?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Remove this sync task? Files already synced stay on this computer.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>File types not to sync</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Sync folder on this computer</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Extensions start with a dot, for example .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>The wizard is ready to remove [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Changes saved.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Click the Driftwell icon in the menu bar to see what is being synced.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>File names not to sync:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Set up the proxy manually</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Relay service disabled</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>The connection is unstable. Driftwell keeps trying.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Click Remove to remove [ProductName] from this computer.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sync this folder again</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] has been installed</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Locked by another program</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Choose a folder on the server and a folder on this computer to keep in sync.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>To try again, run the installer later. Click Finish to close the wizard.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connect to your server</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>You can sync at most %1 shared folders.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Next &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Show an icon on files that aren't synced</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Please wait while the wizard installs [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Quit Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>There isn't enough free space on this computer.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>A sharing link can't be created for this item.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Enter the username for the proxy server.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Last 30 days</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Change...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Keep both files and rename the older one</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>I &amp;accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Previous versions</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 is already running.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Click Install to begin. To review or change any of your settings, click Back.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Files larger than %1 MB aren't synced.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}The installation of [ProductName] was interrupted</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Connection details</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blue arrows mean a file is being synced.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Link another server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applying the settings...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Enter a username.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Your Driftwell folder is now in sync with the server.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Transfer queue</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Choose a setup type</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell couldn't start. Restart your computer and try again.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Fixes missing or damaged files, shortcuts, and registry entries of [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Install update</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] will keep the folders you choose in sync with your server.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] was installed successfully.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>You don't have permission to access this shared folder.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Status information</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Sync mode:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>This folder belongs to a different server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>This file can't be downloaded right now.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Patterns without a wildcard must match the whole file name.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Excluded file names</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>A newer version of [ProductName] is already installed.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Your storage quota on the server is used up. Free up space or ask for a larger quota.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Close the programs automatically and restart them afterwards</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Can't find the local sync folder. It may have been moved or deleted.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>The wizard is copying files and updating your system.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Don't show this again</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Keep both files and add the computer name to the copy from this computer</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>There isn't enough free space on this computer. Free up space to continue syncing.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Files updated</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Your storage quota on the server is used up.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 hours ago</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>No folder can be synced.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>A conflict was found. Both versions were kept.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>The new language is used after Driftwell restarts.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Folder already in use</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Updating Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>License agreement</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>On the server</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 is a mount point and can't be used as a sync folder.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Some files that need to be updated are in use.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>No events to show.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Changes to this folder on this computer aren't uploaded.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Sync history</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>You only have read access to this shared folder.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Use a monochrome menu bar icon</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Folder isn't empty</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>The server's certificate has changed. Trust the new certificate?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk full</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minutes ago</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Enter the verification code from your authenticator app.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>You don't have access to this folder.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>New sync task</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Use * to match any characters, for example ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Checking files...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>This might take a few minutes.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Keep the file that was changed last</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>This folder is already synced with another shared folder.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Sync with your own server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Search this network</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Your files, on every computer you use.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>The folder on the server isn't available.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Setup is complete. Driftwell is now syncing your files.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>To install [ProductName] later, run the installer again.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>One folder can belong to only one sync task.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>마지막 연결 이후 서버의 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>동기화 작업을 만들 수 없습니다. 서버 연결을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>튜토리얼 표시</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>양쪽에 있는 파일은 모두 유지되며, 더 오래된 사본의 이름이 변경됩니다.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>최근 7일</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>서버의 보안 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>이 공유 폴더의 동기화를 중지하시겠습니까? 파일은 서버에 그대로 남습니다.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>계정:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>프로그램을 닫지 않음(다시 시작해야 할 수 있음)(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell이 준비되었습니다.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>공유 폴더의 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>다운로드가 중지되었습니다.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>이 컴퓨터에 [ProductName]을(를) 설치합니다.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>릴레이 서비스를 통해 연결</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell 설정이 완료되어 동기화를 시작했습니다.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>시스템 오류로 인해 Driftwell이 릴레이 서비스에 연결할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>서버와 보안 연결을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>이 컴퓨터와 동기화할 서버의 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}[ProductName] 설치 중</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>추가 팁</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell을 업데이트하는 중입니다. 잠시 기다려 주십시오.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Driftwell 열기</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>서버:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1을(를) 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>컴퓨터는 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>비밀번호:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>파일 및 폴더에 동기화 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>동기화할 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>아니요, 괜찮습니다</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>선택 해제한 폴더의 파일은 이 컴퓨터에서 제거되지만 서버에는 그대로 남습니다.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>동기화 폴더가 마운트되지 않은 볼륨에 있습니다. 동기화를 계속하려면 볼륨을 연결하십시오.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Driftwell에 오신 것을 환영합니다!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>업데이트하지 못했습니다. 이전 버전을 계속 사용합니다.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화 중...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1이(가) 업데이트됨</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 설치</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell 초기화 중...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>마법사가 완료되기 전에 중지되었습니다.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>변경(&amp;C)</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>인증 실패</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Driftwell이 서버의 응답을 인식할 수 없습니다. 서버와 클라이언트를 최신 버전으로 업데이트하십시오.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>이 폴더의 동기화 방향이 서버에 설정된 방향과 다릅니다.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 처리 중</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연동 해제</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>%1 폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>사용자 지정 설정</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>서버에서 Driftwell이 지원하지 않는 이전 버전이 실행되고 있습니다. 서버를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>동기화 방향이 서버 설정과 다릅니다.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>서버가 이 IP 주소의 연결을 허용하지 않습니다. 관리자에게 액세스 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>로드 중...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>파일 %1개 동기화 중</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>서버의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 정보</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다. 동기화가 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>이 폴더 동기화 중지</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연동 해제 중...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>네트워크 연결이 끊어졌습니다. Driftwell이 자동으로 다시 연결합니다.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>마법사를 닫으려면 [마침]을 클릭하십시오.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>새 버전이 준비되었습니다. 클릭하여 설치하십시오.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>이 폴더에 대한 읽기 권한만 있습니다. 파일은 다운로드만 되고 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>릴레이 서비스를 통한 연결 허용</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>서버에 이 공유 폴더가 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>이 버전의 Driftwell은 서버에 비해 너무 오래되었습니다. 최신 버전을 설치하십시오.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>설치하지 않고 마법사를 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>이 컴퓨터에 이 폴더를 위한 여유 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>릴레이 서비스가 서버로 가는 경로를 찾을 수 없습니다. 서버가 온라인 상태인지 확인하십시오.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>서버의 공유 폴더가 마운트되지 않았습니다. 서버에서 마운트한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>폴더가 비어 있지 않습니다. 폴더의 파일이 서버의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>릴레이 서비스를 통해서는 공유 링크를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>서버의 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 변경됨</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>제외된 폴더...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>로컬 동기화 데이터베이스가 손상되었습니다. 데이터베이스를 다시 만들려면 폴더의 연동을 해제한 후 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>[ProductName] 설치를 복구하려면 [복구]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>인증 코드:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>이 파일의 이전 버전 목록을 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>관리자가 이 폴더의 동기화를 해제했습니다.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>동기화가 끝나면:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell이 %1회 시도한 후 중단했습니다. 네트워크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Driftwell 폴더에 파일을 넣으면 서버와 다른 컴퓨터에도 나타납니다.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>연결 불안정</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>마법사에서 설치를 시작할 준비가 모두 완료되었습니다.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>설정을 확인한 후 [완료]를 클릭하여 동기화를 시작하십시오.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>[ProductName]을(를) 설치하려면 관리자 권한이 필요합니다. 그래도 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>%1 폴더는 이미 다른 동기화 작업에서 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>이 주소의 서버가 변경되었습니다. 동기화 작업을 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>서버에서 릴레이 서비스가 꺼져 있습니다. 직접 연결하거나 서비스를 켜십시오.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell이 서버에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>연결 유형</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>서버와 이 컴퓨터의 폴더를 직접 선택합니다.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>동기화 대상을 변경하려면 설정을 여십시오.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>서버의 보안 인증서가 변경되었습니다. 새 인증서를 신뢰하는지 확인하십시오.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>서버와의 연결이 종료되었습니다.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell이 이 폴더의 색인을 만드는 중입니다.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>포트:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>업데이트 사용 가능</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>이 목록의 폴더는 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>백업 위치:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>서버의 홈 폴더를 이 컴퓨터의 Driftwell 폴더와 동기화합니다.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>시스템 오류로 인해 폴더 목록을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>[ProductName]을(를) 변경, 복구 또는 제거합니다.</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>이 폴더의 파일은 서버와 동기화됩니다.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName]을(를) 설치할 수 없습니다. 컴퓨터는 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>다음 프로그램이 [ProductName] 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>설치 복구</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName] 설치 준비 완료</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>다음보다 큰 파일은 동기화하지 않음:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>언어:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>이 컴퓨터의 공간</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>관리자가 2단계 인증을 요구합니다. 먼저 계정에서 2단계 인증을 켜십시오.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>동기화할 파일 선택</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>프로그램 제거</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>동기화 중: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>로그인할 때 Driftwell 시작</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>시작하려면 서버에 로그인하십시오.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>공유 폴더의 동기화를 켤 수 없습니다.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>암호화된 연결</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>종료:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName]에는 변경할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>빠른 설정은 권장 설정을 사용합니다. 사용자 지정 설정에서는 각 설정을 직접 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>양쪽에서 파일이 변경된 경우:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>이 파일에는 이전 버전이 없습니다.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>선택...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>녹색 체크 표시는 파일이 최신 상태임을 나타냅니다.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>백업할 폴더 선택</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>제외된 파일:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>연동을 해제하면 이 서버와의 동기화가 중지됩니다. 파일은 이 컴퓨터에 그대로 남습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Finder에서 보기</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>오류로 인해 [ProductName] 설치 마법사가 중지되었습니다.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>동기화 상태를 한눈에</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>이 컴퓨터에서 [ProductName]을(를) 제거합니다. 동기화된 파일은 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>이 폴더는 동기화에 사용할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1님이 "%2" 폴더를 공유했습니다.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>다른 동기화 작업에서 사용하지 않는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>동기화된 파일과 폴더는 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>선택적 동기화를 사용하려면 Driftwell을 업데이트하십시오.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>암호화된 연결(HTTPS) 사용</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>폴더 변경...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0은 제한 없음을 의미합니다.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>동기화 상태 표시</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>이 컴퓨터에서 파일을 삭제해도 서버의 파일은 유지</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>서버의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>이 컴퓨터에서</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1을(를) 다운로드했습니다.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>선택 사항을 검토하려면 [뒤로]를, 마법사를 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>설정하는 데 도움이 필요하십니까? 온라인 가이드를 여십시오.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>이 프로그램을 닫고 [다시 시도]를 클릭하거나, [무시]를 클릭하여 그대로 계속하십시오.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>사용권 계약의 조건에 동의하지 않습니다(&amp;D)</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell이 폴더의 변경 사항을 감지하여 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>선택한 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>동기화 상태로 유지할 다른 폴더 쌍을 선택하십시오.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>서버의 호스트 이름, IP 주소 또는 릴레이 ID를 입력하십시오.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}[ProductName] 설치 마법사 시작</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>[ProductName]에 대해 수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>이 서버에서 유효하지 않은 사용자 이름입니다.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>릴레이 ID가 올바르지 않습니다. ID를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>문제가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>내 Driftwell 폴더</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1(으)로 보내기</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>[ProductName]을(를) 설치하려면 이 계약의 조건에 동의해야 합니다.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>이 컴퓨터와 서버의 연동을 해제하시겠습니까?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>메뉴 막대에서 작업하기</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>메뉴 막대에서 동기화를 일시 중지하거나 설정을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>릴레이 연결을 통해서는 파일을 공유할 수 없습니다.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>네트워크 드라이브의 변경 사항은 늦게 감지될 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>파일 %2개 중 %1개 처리됨</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>연결 유형 감지 중...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>선택한 폴더는 서버에 복사됩니다. 이 컴퓨터에서 파일을 삭제해도 백업은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>서버 개요</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>프록시 서버의 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>로컬 폴더</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>다른 프로그램이 이 파일을 잠갔습니다.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>대기 상태</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}[ProductName] 유지 관리 마법사 시작</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName] 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>이 컴퓨터는 이미 이 서버와 연동되어 있습니다.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>공유 링크 복사</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\n버전:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>사용자 이름 또는 비밀번호가 올바르지 않습니다. 다시 입력하십시오.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>목록에서 이 공유 폴더를 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>파일은 항상 사용자의 서버에 보관됩니다.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>목록에서 공유 폴더를 제거할 수 없습니다.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>프라이빗하고 빠르며 언제나 최신 상태</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>선택한 폴더 동기화 중지</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>최근 변경 항목</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>서버와의 연결이 불안정합니다. Driftwell이 계속 다시 연결을 시도하고 있습니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사가 컴퓨터에 [ProductName]을(를) 설치합니다.\n계속하려면 [다음]을, 설치 마법사를 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽으십시오.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>동기화 활동</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1님이 폴더를 공유했습니다</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>인증 코드가 올바르지 않거나 만료되었습니다.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>공유 폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>사용자 지정 범위</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>이 폴더는 읽기 전용입니다. 이 컴퓨터의 변경 사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>잘못된 매개 변수입니다.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>마지막 업로드: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>연결 설정은 나중에 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>파일 확장명</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Driftwell에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>폴더 연동 시 파일 병합</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>백업을 완료할 수 없습니다. 대상 폴더를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>시작:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>이 확장명을 가진 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>서버 주소와 계정 정보를 입력하십시오.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>이 폴더는 이미 동기화 중인 폴더와 겹칩니다.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>설치 취소</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한 거부됨</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>지원되지 않는 버전</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>서버에 이 폴더를 위한 할당량이 충분히 남아 있지 않습니다.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>포트는 1에서 65535 사이의 숫자여야 합니다.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>두 번 클릭하여 확장명 편집</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}[ProductName] 설치 실패</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>마법사에서 [ProductName]을(를) 복구할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>항상 서버의 파일 사용</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>비밀번호 확인 중...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>설치할 [ProductName] 기능을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>연결 테스트</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>네트워크 오류로 인해 폴더 목록을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>선택한 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>아이콘을 두 번 클릭하면 Driftwell이 열립니다.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>내 홈 폴더에 Driftwell 폴더 만들기</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Driftwell 폴더 열기</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>지금 [ProductName] 시작(&amp;S)</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>다시 동기화 시도</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>이 버전의 [ProductName]이(가) 이미 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>프록시 서버에 비밀번호 필요</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>설치된 기능 변경</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>계속하면 나중에 컴퓨터를 다시 시작해야 할 수 있습니다.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>이 네트워크에서 서버 검색</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>이 폴더의 파일이 서버의 파일과 병합됩니다. 아무것도 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>실수로 파일을 변경하셨습니까? 서버에서 이전 버전을 복원하십시오.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell 시작 중...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>포트 번호는 1에서 65535 사이여야 합니다.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>마운트 지점을 사용할 수 없음</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>모든 준비가 끝났습니다</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>변경 사항이 저장되지 않았습니다. 지금 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell은 이 컴퓨터와 서버의 파일을 항상 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>이 폴더의 파일을 서버의 파일과 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>이 동기화 작업을 제거하시겠습니까? 이미 동기화된 파일은 이 컴퓨터에 그대로 남습니다.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>마침(&amp;F)</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>동기화하지 않을 파일 형식</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>이 컴퓨터의 동기화 폴더</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>확장명은 점으로 시작합니다(예: .tmp).</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>마법사에서 [ProductName]을(를) 제거할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>변경 사항이 저장되었습니다.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>메뉴 막대의 Driftwell 아이콘을 클릭하면 동기화 중인 항목을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>동기화하지 않을 파일 이름:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>폴더:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>프록시 수동 설정</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>릴레이 서비스 사용 안 함</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>연결이 불안정합니다. Driftwell이 계속 시도하고 있습니다.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>이 컴퓨터에서 [ProductName]을(를) 제거하려면 [제거]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>이 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] 설치 완료</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금 전</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>다른 프로그램에서 잠김</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>동기화 상태로 유지할 서버의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>다시 시도하려면 나중에 설치 프로그램을 다시 실행하십시오. 마법사를 닫으려면 [마침]을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>서버에 연결</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>공유 폴더는 최대 %1개까지 동기화할 수 있습니다.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>다음(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>동기화되지 않는 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>마법사가 [ProductName]을(를) 설치하는 동안 잠시 기다려 주십시오.</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Driftwell 종료</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>이 컴퓨터에 여유 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>변경된 내용이 없습니다.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>이 항목에 대한 공유 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>프록시 서버의 사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>최근 30일</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>변경...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>유지 관리 마법사를 사용하여 이 컴퓨터에서 [ProductName]을(를) 복구하거나 제거할 수 있습니다.\n계속하려면 [다음]을, 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>두 파일을 모두 유지하고 오래된 파일의 이름 변경</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>사용권 계약의 조건에 동의합니다(&amp;A)</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>이전 버전</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1이(가) 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>시작하려면 [설치]를 클릭하십시오. 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>%1MB보다 큰 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}[ProductName] 설치가 중단되었습니다</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>연결 세부 정보</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>파란색 화살표는 파일이 동기화 중임을 나타냅니다.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>다른 서버 연동</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>설정 적용 중...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>이제 Driftwell 폴더가 서버와 동기화되었습니다.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>바탕 화면 알림 표시</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>전송 대기열</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>설정 유형 선택</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell을 시작할 수 없습니다. 컴퓨터를 다시 시작한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>[ProductName]의 누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 복구합니다.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ~ %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>업데이트 설치</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName]이(가) 선택한 폴더를 서버와 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName]이(가) 설치되었습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>이 공유 폴더에 액세스할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>종료(&amp;X)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>상태 정보</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>동기화 모드:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>이 폴더는 다른 서버에 속해 있습니다.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>지금은 이 파일을 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>와일드카드가 없는 패턴은 전체 파일 이름과 일치해야 합니다.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>제외된 파일 이름</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>더 새로운 버전의 [ProductName]이(가) 이미 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>서버의 저장 공간 할당량을 모두 사용했습니다. 공간을 확보하거나 할당량 증가를 요청하십시오.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>프로그램을 자동으로 닫은 후 나중에 다시 시작(&amp;C)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>로컬 동기화 폴더를 찾을 수 없습니다. 이동되었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>마법사가 파일을 복사하고 시스템을 업데이트하는 중입니다.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>두 파일을 모두 유지하고 이 컴퓨터의 사본에 컴퓨터 이름 추가</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>이 컴퓨터에 여유 공간이 부족합니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>업데이트된 파일</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>서버의 저장 공간 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>동기화할 수 있는 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>충돌이 발견되었습니다. 두 버전을 모두 유지했습니다.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>[ProductName] 제거 준비 완료</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>새 언어는 Driftwell을 다시 시작한 후 적용됩니다.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>이미 사용 중인 폴더</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Driftwell 업데이트 중...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>사용권 계약</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>서버에서</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1은(는) 마운트 지점이므로 동기화 폴더로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>업데이트해야 하는 일부 파일이 사용 중입니다.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>표시할 이벤트가 없습니다.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>이 컴퓨터에서 이 폴더에 적용한 변경 사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>동기화 기록</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>이 공유 폴더에 대한 읽기 권한만 있습니다.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>단색 메뉴 막대 아이콘 사용</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>빠른 설정</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>서버의 인증서가 변경되었습니다. 새 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>디스크 가득 참</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>인증 앱에 표시된 인증 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>이 폴더에 액세스할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>새 동기화 작업</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>*는 임의의 문자와 일치합니다(예: ~*.tmp).</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>파일 확인 중...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>마지막으로 변경된 파일 유지</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>이 폴더는 이미 다른 공유 폴더와 동기화되고 있습니다.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>나만의 서버와 동기화</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>이 네트워크 검색</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>사용하는 모든 컴퓨터에서 만나는 내 파일.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>서버의 폴더를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>설정이 완료되었습니다. Driftwell이 파일을 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName] 복구 준비 완료</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>나중에 [ProductName]을(를) 설치하려면 설치 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>하나의 폴더는 하나의 동기화 작업에만 속할 수 있습니다.</translation>
    </message>
</context>
</TS>

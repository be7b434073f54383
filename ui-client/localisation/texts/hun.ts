<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>A szerver tanúsítványa megváltozott a legutóbbi kapcsolódás óta.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>A szinkronizálási feladatot nem sikerült létrehozni. Ellenőrizze a szerverrel való kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Bemutató megjelenítése</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>A mindkét helyen meglévő fájlok megmaradnak, a régebbi példány pedig új nevet kap.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Elmúlt 7 nap</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>A szerver biztonsági tanúsítványát nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Leállítja a megosztott mappa szinkronizálását? A benne lévő fájlok a szerveren maradnak.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Fiók:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Ne zárja be a programokat (újraindításra lehet szükség)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>A Driftwell készen áll.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>A megosztott mappa kvótája elfogyott.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>A letöltés leállt.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>A [ProductName] telepítése erre a számítógépre.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>A közvetítőszolgáltatáson keresztül</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>A Driftwell beállítása kész, és a szinkronizálás elindult.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>A Driftwell egy rendszerhiba miatt nem érte el a közvetítőszolgáltatást. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni a szerverrel.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Válassza ki, hogy a szerver mely megosztott mappáit szeretné szinkronizálni ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}A [ProductName] telepítése</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>További tippek</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>A Driftwell frissítése folyamatban van. Kérjük, várjon.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>A Driftwell megnyitása</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Szerver:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Nem sikerült letölteni: %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>A számítógépen nem történt módosítás.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Szinkronizálási állapotikonok megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Válassza ki a szinkronizálandó mappát.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nem, köszönöm</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>A kijelölésből kivett mappákban lévő fájlok törlődnek erről a számítógépről, de a szerveren megmaradnak.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>A szinkronizálási mappa egy nem csatlakoztatott köteten van. A szinkronizálás folytatásához csatlakoztassa a kötetet.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Üdvözöljük a Driftwellben!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>A frissítés nem sikerült. Továbbra is az előző verzió van használatban.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>Frissítve: %1</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>A [ProductName] telepítője</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>A Driftwell inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>A varázsló a befejezés előtt leállt.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Módosítás</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Sikertelen hitelesítés</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>A szerver olyan választ küldött, amelyet a Driftwell nem ért. Frissítse a szervert és az ügyfélprogramot a legújabb verzióra.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>A mappa szinkronizálási iránya eltér a szerveren beállítottól.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Feldolgozás: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Nem sikerült létrehozni a mappát: %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Egyéni beállítás</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>A szerveren régebbi verzió fut, amelyet a Driftwell nem támogat. Frissítse a szervert.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>A szinkronizálás iránya eltér a szerver beállításától.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Vissza</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>A szerver nem fogad kapcsolatot erről az IP-címről. Kérjen hozzáférést a rendszergazdától.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 fájl szinkronizálása</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>A szerver lemeze megtelt.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Névjegy: %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>A számítógép lemeze megtelt. A szinkronizálás szünetel.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>A mappa szinkronizálásának leállítása</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>A számítógép lemeze megtelt.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>A hálózati kapcsolat megszakadt. A Driftwell automatikusan újracsatlakozik.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>A varázsló bezárásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Új verzió érhető el. Kattintson ide a telepítéséhez.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Ehhez a mappához csak olvasási joga van. A fájlok letöltődnek, de soha nem töltődnek fel.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Kapcsolatok engedélyezése a közvetítőszolgáltatáson keresztül</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>A megosztott mappa már nem létezik a szerveren.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>A Driftwell ezen verziója túl régi a szerverhez. Telepítse a legújabb verziót.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Ha telepítés nélkül szeretne kilépni a varázslóból, kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Nincs elég szabad hely a számítógépen ehhez a mappához.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>A közvetítőszolgáltatás nem talált útvonalat a szerveréhez. Ellenőrizze, hogy a szerver elérhető-e.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>A szerveren lévő megosztott mappa nincs csatlakoztatva. Csatlakoztassa a szerveren, majd próbálja újra.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>A mappa nem üres. A benne lévő fájlok egyesülnek a szerveren lévő fájlokkal.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Megosztási hivatkozások nem érhetők el a közvetítőszolgáltatáson keresztül.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Elfogyott a kvótája a szerveren.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Kizárt mappák...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>A helyi szinkronizálási adatbázis megsérült. Az újraépítéséhez válassza le a mappát, majd kapcsolja össze újra.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>A [ProductName] telepítésének kijavításához kattintson a Javítás gombra.</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Ellenőrző kód:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>A fájl korábbi verziói nem listázhatók.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>A mappa szinkronizálását a rendszergazda kikapcsolta.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>A szinkronizálás befejeződésekor:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>A Driftwell %1 próbálkozás után feladta. Ellenőrizze a hálózatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Tegyen fájlokat a Driftwell-mappába, és azok megjelennek a szerverén és a többi számítógépén.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Instabil kapcsolat</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>A varázsló minden szükséges adattal rendelkezik a telepítés megkezdéséhez.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Ellenőrizze a beállításokat, majd a szinkronizálás elindításához kattintson a Kész gombra.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>A [ProductName] telepítéséhez rendszergazdai jogosultság szükséges. Mégis folytatja?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Befejeződött</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Ezt a mappát már egy másik feladat szinkronizálja: %1.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Válassza ki, mit szeretne tenni.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Az ezen a címen található szerver megváltozott. Kapcsolja össze újra a szinkronizálási feladatot.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>A közvetítőszolgáltatás ki van kapcsolva a szerveren. Csatlakozzon közvetlenül, vagy kapcsolja be a szolgáltatást.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>A Driftwell nem csatlakozik egyetlen szerverhez sem.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Válassza ki saját maga a mappákat a szerveren és ezen a számítógépen.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>A szinkronizált tartalom módosításához nyissa meg a beállításokat.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>A szerver biztonsági tanúsítványa megváltozott. Erősítse meg, hogy megbízik az új tanúsítványban.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>A szerverrel létesített kapcsolat bezárult.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>A Driftwell indexeli ezt a mappát.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Frissítés érhető el</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Az ebben a listában szereplő mappák soha nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Biztonsági mentés helye:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Szinkronizálja a szerveren lévő saját mappáját egy Driftwell-mappával ezen a számítógépen.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>A mappalistát rendszerhiba miatt nem sikerült betölteni.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>A [ProductName] módosítása, javítása vagy eltávolítása.</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>A mappában lévő fájlok szinkronizálódnak a szerverrel.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>A [ProductName] telepítése nem sikerült. A számítógépen nem történt módosítás.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>A következő programok olyan fájlokat használnak, amelyeket a [ProductName] telepítőjének frissítenie kell.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>A telepítés javítása</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>A [ProductName] telepítésre kész</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Ne szinkronizálja az ennél nagyobb fájlokat:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Nyelv:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Hely ezen a számítógépen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>A rendszergazda megköveteli a kétlépéses azonosítást. Először kapcsolja be a fiókjához.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Szinkronizálandó fájlok kiválasztása</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>A program eltávolítása</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Szinkronizálás folyamatban: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>A Driftwell indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>A kezdéshez jelentkezzen be a szerverére.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>A megosztott mappa szinkronizálását nem sikerült bekapcsolni.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Titkosított kapcsolat</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Eddig:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>A [ProductName] nem rendelkezik módosítható szolgáltatásokkal.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>A gyors beállítás az ajánlott beállításokat használja. Az egyéni beállításnál mindegyiket Ön választhatja ki.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Ha egy fájl mindkét oldalon módosult:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Ennek a fájlnak nincsenek korábbi verziói.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Újra</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Kiválasztás...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>A zöld pipa azt jelzi, hogy a fájl naprakész.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Biztonsági mentésre kerülő mappák kiválasztása</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Kizárt fájlok:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>A leválasztással leáll a szinkronizálás ezzel a szerverrel. A fájlok ezen a számítógépen maradnak. Folytatja?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Megjelenítés a Finderben</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Egy hiba leállította a [ProductName] telepítővarázslóját.</translation>
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
        <translation>Szinkronizálási állapot egy pillantással</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Eltávolítja a [ProductName] programot erről a számítógépről. A szinkronizált fájlok a helyükön maradnak.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Ez a mappa nem használható szinkronizáláshoz. Válasszon egy másikat.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 megosztotta Önnel a következő mappát: „%2”.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Válasszon olyan mappát, amelyet más szinkronizálási feladat nem használ.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>A szinkronizált fájlok és mappák nem törlődnek.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>A szelektív szinkronizálás használatához frissítse a Driftwellt.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Titkosított kapcsolat használata (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Mappa módosítása...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Mappák kiválasztása</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>A 0 azt jelenti, hogy nincs korlát.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Nyomtatás</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Szinkronizálási állapot megjelenítése</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>A fájlok megtartása a szerveren, ha ezen a számítógépen törlöm őket</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Válasszon egy mappát a szerveren.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Ezen a számítógépen</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>A letöltés befejeződött: %1.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>A választás áttekintéséhez kattintson a Vissza gombra, a varázslóból való kilépéshez pedig a Mégse gombra.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Segítségre van szüksége a beállításhoz? Nyissa meg az online útmutatót.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Zárja be ezeket a programokat, és kattintson az Újra gombra, vagy a folytatáshoz kattintson a Kihagyás gombra.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Nem &amp;fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>A Driftwell változásokat észlelt a mappáiban, és szinkronizálja őket.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Nincs kiválasztott mappa.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Válasszon egy újabb mappapárt, amelyet szinkronban szeretne tartani.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Adja meg a szerver gazdagépnevét, IP-címét vagy közvetítő-azonosítóját.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Üdvözli a [ProductName] telepítővarázslója</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Válassza ki a [ProductName] programon végrehajtandó műveletet.</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>A felhasználónév nem érvényes ezen a szerveren.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>A közvetítő-azonosító érvénytelen. Ellenőrizze az azonosítót, és próbálja újra.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Hiba történt. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Az Ön Driftwell-mappája</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Küldés ide: %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>A [ProductName] telepítéséhez el kell fogadnia a szerződés feltételeit.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Biztosan leválasztja ezt a számítógépet a szerverről?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Munka a menüsorból</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Innen szüneteltetheti a szinkronizálást, vagy megnyithatja a beállításokat.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Közvetített kapcsolaton keresztül nem lehet fájlokat megosztani.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>A hálózati meghajtókon történt változások késéssel észlelhetők.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%2 fájlból %1 feldolgozva</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa kiválasztása</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>A kapcsolat típusának felismerése...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>A kiválasztott mappák a szerverre másolódnak. Ha ezen a számítógépen töröl egy fájlt, a biztonsági mentése nem törlődik.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Szerveráttekintés</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Adja meg a proxyszerver címét és portját.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Helyi mappa</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>A fájlt egy másik program zárolta.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}A telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újracsatlakozás</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Üdvözli a [ProductName] karbantartó varázslója</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Biztosan megszakítja a [ProductName] telepítését?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Ez a számítógép már össze van kapcsolva ezzel a szerverrel.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Megosztási hivatkozás másolása</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVerzió:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>A felhasználónév vagy a jelszó helytelen. Adja meg őket újra.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Eltávolítja ezt a megosztott mappát a listából?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>A fájljai a saját szerverén maradnak.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>A megosztott mappát nem sikerült eltávolítani a listából.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privát, gyors és mindig naprakész</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>A mappák szinkronizálásának leállítása</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Legutóbb módosított</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>A szerverrel való kapcsolat instabil. A Driftwell folyamatosan próbál újracsatlakozni.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló telepíti a [ProductName] programot a számítógépre.\nA folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez pedig a Mégse gombra.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciók</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen a következő licencszerződést.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Szinkronizálási tevékenység</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Korábbi verziók böngészése</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 megosztott Önnel egy mappát</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Az ellenőrző kód helytelen vagy lejárt.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>A megosztott mappa nem található</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egyéni időszak</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Ez a mappa csak olvasható. Az ezen a számítógépen végzett módosítások nem töltődnek fel.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Érvénytelen paraméter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Utolsó feltöltés: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>A kapcsolat beállításait később is módosíthatja.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Fájlkiterjesztés</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Üdvözöljük a Driftwellben</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Fájlok egyesítése mappa összekapcsolásakor</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>A biztonsági mentést nem sikerült befejezni. Ellenőrizze a célmappát, és próbálja újra.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Ettől:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Várakozik</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Az ilyen kiterjesztésű fájlok nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Adja meg a szerver címét és a fiókja adatait.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ez a mappa átfedésben van egy már szinkronizált mappával.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Telepítés megszakítása</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Nem támogatott verzió</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Nincs elég kvóta a szerveren ehhez a mappához.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A portnak 1 és 65535 közötti számnak kell lennie.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Kattintson duplán a kiterjesztés szerkesztéséhez</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}A [ProductName] telepítése nem sikerült</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>A varázsló készen áll a [ProductName] javítására.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Mindig a szerveren lévő fájl használata</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Itt módosíthatja, hogy a [ProductName] mely szolgáltatásai legyenek telepítve.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Kapcsolat tesztelése</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>A mappalistát hálózati hiba miatt nem sikerült betölteni.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nincs kapcsolat</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>A mappák szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>A Driftwell megnyitásához kattintson duplán az ikonra.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Driftwell-mappa létrehozása a saját mappámban</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>A Driftwell-mappa megnyitása</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>A [ProductName] &amp;elindítása most</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Szinkronizálás újrapróbálása</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>A [ProductName] ezen verziója már telepítve van.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Sikeres csatlakozás.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>A proxyszerver jelszót kér</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>A telepített szolgáltatások módosítása</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Ha folytatja, utána előfordulhat, hogy újra kell indítania a számítógépet.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Szinkronizálandó mappák kiválasztása</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Szerverek keresése ezen a hálózaton</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>A mappában lévő fájlok egyesülnek a szerveren lévő fájlokkal. Semmi sem törlődik.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Véletlenül módosított egy fájlt? Állítson vissza egy korábbi verziót a szerverről.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>A Driftwell indul...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Szinkronizálási mappa módosítása</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>A portszámnak 1 és 65535 között kell lennie.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>A csatlakoztatási pont nem érhető el</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Minden készen áll</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>A módosítások nincsenek mentve. Menti őket most?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>A Driftwell szinkronban tartja a fájlokat ezen a számítógépen és a szerverén.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Egyesíti a mappában lévő fájlokat a szerveren lévőkkel?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Biztosan eltávolítja ezt a szinkronizálási feladatot? A már szinkronizált fájlok ezen a számítógépen maradnak.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Befejezés</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Nem szinkronizálandó fájltípusok</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Szinkronizálási mappa ezen a számítógépen</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>A kiterjesztések ponttal kezdődnek, például .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>A varázsló készen áll a [ProductName] eltávolítására.</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>A módosítások mentése megtörtént.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Ha látni szeretné, mi szinkronizálódik éppen, kattintson a menüsorban a Driftwell ikonjára.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nem szinkronizálandó fájlnevek:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mappa:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>A proxy kézi beállítása</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Közvetítőszolgáltatás letiltva</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>A kapcsolat instabil. A Driftwell tovább próbálkozik.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>A [ProductName] erről a számítógépről való eltávolításához kattintson az Eltávolítás gombra.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>A mappa szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}A [ProductName] telepítése befejeződött</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Épp most</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Egy másik program zárolta</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Válasszon ki egy mappát a szerveren és egy mappát ezen a számítógépen, amelyeket szinkronban szeretne tartani.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Az újrapróbálkozáshoz később futtassa újra a telepítőt. A varázsló bezárásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Csatlakozás a szerveréhez</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Legfeljebb %1 megosztott mappát szinkronizálhat.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Tovább &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Ikon megjelenítése a nem szinkronizált fájlokon</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Kérjük, várjon, amíg a varázsló telepíti a [ProductName] programot.</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Kilépés a Driftwellből</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Nincs elég szabad hely a számítógépen.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nem történt módosítás.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Ehhez az elemhez nem hozható létre megosztási hivatkozás.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Adja meg a proxyszerverhez tartozó felhasználónevet.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Elmúlt 30 nap</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Módosítás...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>A karbantartó varázslóval javíthatja vagy eltávolíthatja a [ProductName] programot ezen a számítógépen.\nA folytatáshoz kattintson a Tovább gombra, a kilépéshez pedig a Mégse gombra.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Mindkét fájl megtartása, a régebbi átnevezése</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Korábbi verziók</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>A(z) %1 már fut.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>A kezdéshez kattintson a Telepítés gombra. A beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Nem szinkronizálódnak azok a fájlok, amelyek nagyobbak %1 MB-nál.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}A [ProductName] telepítése megszakadt</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Kapcsolat adatai</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>A kék nyilak azt jelzik, hogy a fájl szinkronizálása folyamatban van.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Összekapcsolás egy másik szerverrel</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Adjon meg egy felhasználónevet.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>A Driftwell-mappája most már szinkronban van a szerverrel.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappa neve</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Szűrők</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Átviteli sor</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Beállítási mód kiválasztása</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>A Driftwell nem tudott elindulni. Indítsa újra a számítógépet, majd próbálkozzon ismét.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Kijavítja a [ProductName] hiányzó vagy sérült fájljait, parancsikonjait és beállításjegyzék-bejegyzéseit.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Frissítés telepítése</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>A [ProductName] szinkronban tartja a kiválasztott mappákat a szerverével.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>A [ProductName] telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Nincs jogosultsága a megosztott mappa eléréséhez.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Ki&amp;lépés</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>és még %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Állapotinformáció</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Szinkronizálási mód:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Csak olvasható mappa</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ez a mappa egy másik szerverhez tartozik.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Ez a fájl jelenleg nem tölthető le.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>A helyettesítő karakter nélküli mintáknak a teljes fájlnévre kell illeszkedniük.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Kizárt fájlnevek</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>A [ProductName] egy újabb verziója már telepítve van.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Elfogyott a tárhelykvótája a szerveren. Szabadítson fel helyet, vagy kérjen nagyobb kvótát.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Zárja be automatikusan a programokat, majd indítsa újra őket</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>A helyi szinkronizálási mappa nem található. Lehet, hogy áthelyezték vagy törölték.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>A varázsló fájlokat másol, és frissíti a rendszert.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Mindkét fájl megtartása és a számítógép nevének hozzáadása az erről a számítógépről származó példányhoz</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Nincs elég szabad hely a számítógépen. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Elfogyott a tárhelykvótája a szerveren.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Egyetlen mappa sem szinkronizálható.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Ütközés történt. Mindkét verzió megmaradt.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>A [ProductName] eltávolításra kész</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Az új nyelv a Driftwell újraindítása után lép életbe.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>A mappa már használatban van</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>A Driftwell frissítése...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licencszerződés</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>A szerveren</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>Ez egy csatlakoztatási pont, ezért nem használható szinkronizálási mappaként: %1.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Néhány frissítendő fájl használatban van.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nincs megjeleníthető esemény.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Az ebben a mappában ezen a számítógépen végzett módosítások nem töltődnek fel.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Szinkronizálási előzmények</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Ehhez a megosztott mappához csak olvasási joga van.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Egyszínű menüsor-ikon használata</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>A szerver tanúsítványa megváltozott. Megbízik az új tanúsítványban?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Megtelt a lemez</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Adja meg a hitelesítő alkalmazásban látható ellenőrző kódot.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Nincs hozzáférése ehhez a mappához.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Új szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Tetszőleges karakterek helyettesítésére használja a * jelet, például ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Fájlok ellenőrzése...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Ez eltarthat néhány percig.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>A legutóbb módosított fájl megtartása</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Telepítés</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Ez a mappa már szinkronizálva van egy másik megosztott mappával.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Szinkronizálás a saját szerverrel</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Keresés ezen a hálózaton</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Fájljai minden számítógépén, amelyet használ.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>A szerveren lévő mappa nem érhető el.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>A beállítás befejeződött. A Driftwell most szinkronizálja a fájljait.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>A [ProductName] javításra kész</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Ha később szeretné telepíteni a [ProductName] programot, futtassa újra a telepítőt.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Egy mappa csak egy szinkronizálási feladathoz tartozhat.</translation>
    </message>
</context>
</TS>

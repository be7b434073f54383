<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Certifikát serveru se od posledního připojení změnil.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Synchronizační úlohu nelze vytvořit. Zkontrolujte připojení k serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit úvodní tipy</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Soubory, které existují na obou místech, se zachovají a starší kopie se přejmenuje.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Posledních 7 dní</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Certifikát zabezpečení serveru nelze ověřit.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>leden</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Zastavit synchronizaci této sdílené složky? Její soubory zůstanou na serveru.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Účet:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Nezavírat programy (může být nutný restart)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell je připraven.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Kvóta sdílené složky je vyčerpána.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Stahování bylo zastaveno.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Nainstalujte [ProductName] do tohoto počítače.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Přes přenosovou službu</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Smazáno</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell je nastaven a zahájil synchronizaci.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell se kvůli systémové chybě nemohl spojit s přenosovou službou. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Zabezpečené připojení k serveru nelze navázat.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Vyberte sdílené složky na serveru, které se mají synchronizovat s tímto počítačem.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Instalace [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Další tipy</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Přidat synchronizační úlohu</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell se aktualizuje. Počkejte prosím.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Otevřít Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>pátek</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1 nelze stáhnout.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Ve vašem počítači nebyly provedeny žádné změny.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Zobrazovat ikony stavu synchronizace u souborů a složek</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Vyberte složku, kterou chcete synchronizovat.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Soubory ve složkách, u kterých zrušíte výběr, se z tohoto počítače odstraní, ale na serveru zůstanou.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Synchronizační složka je na svazku, který není připojen. Připojte svazek, aby synchronizace mohla pokračovat.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Vítá vás Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Aktualizace se nezdařila. Nadále se používá předchozí verze.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>Aktualizováno: %1</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalace [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell se inicializuje...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Průvodce byl přerušen před dokončením.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Z&amp;měnit</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ověření se nezdařilo</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Server odpověděl způsobem, kterému Driftwell nerozumí. Aktualizujte server i klienta na nejnovější verzi.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Směr synchronizace této složky se liší od směru nastaveného na serveru.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Zpracování: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Složku %1 nelze vytvořit.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Vlastní nastavení</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Na serveru běží starší verze, kterou Driftwell nepodporuje. Aktualizujte server.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Směr synchronizace se liší od nastavení na serveru.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zpět</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Server nepřijímá připojení z této IP adresy. Požádejte správce o přístup.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizace souborů: %1</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disk na serveru je plný.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O aplikaci %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Disk v tomto počítači je plný. Synchronizace je pozastavena.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Zastavit synchronizaci této složky</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Disk v tomto počítači je plný.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Síťové připojení bylo ztraceno. Driftwell se automaticky znovu připojí.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit průvodce zavřete.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Je k dispozici nová verze. Kliknutím ji nainstalujete.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>K této složce máte přístup jen pro čtení. Soubory se budou stahovat, ale nikdy nahrávat.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>čtvrtek</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Povolit připojení přes přenosovou službu</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Sdílená složka již na serveru neexistuje.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Tato verze aplikace Driftwell je pro server příliš stará. Nainstalujte nejnovější verzi.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Kliknutím na tlačítko Zrušit ukončíte průvodce bez instalace.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>V tomto počítači není pro tuto složku dostatek volného místa.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Přenosová služba nenašla cestu k vašemu serveru. Zkontrolujte, zda je server online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Sdílená složka na serveru není připojena. Připojte ji na serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Složka není prázdná. Její soubory budou sloučeny se soubory na serveru.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Při připojení přes přenosovou službu nejsou odkazy ke sdílení k dispozici.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Vaše kvóta na serveru je vyčerpána.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Vyloučené složky...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Místní synchronizační databáze je poškozená. Zrušte propojení složky a znovu ji propojte, aby se databáze obnovila.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Kliknutím na tlačítko Opravit opravíte instalaci [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Ověřovací kód:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>pondělí</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Předchozí verze tohoto souboru nelze zobrazit.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Synchronizaci této složky vypnul správce.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Po dokončení synchronizace:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell přestal opakovat pokusy (počet pokusů: %1). Zkontrolujte síť a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Vložte soubory do složky Driftwell a objeví se na vašem serveru i na ostatních počítačích.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ode&amp;brat</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Nestabilní připojení</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Průvodce má vše potřebné k zahájení instalace.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Zkontrolujte nastavení a kliknutím na tlačítko Hotovo spusťte synchronizaci.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>K instalaci [ProductName] potřebujete oprávnění správce. Přesto pokračovat?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>neděle</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Složka %1 je již synchronizována jinou úlohou.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Vyberte, co chcete udělat.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Server na této adrese se změnil. Synchronizační úlohu znovu propojte.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronizační úlohy</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Přenosová služba je na serveru vypnutá. Připojte se přímo, nebo službu zapněte.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell není připojen k serveru.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Vyberte složky na serveru a v tomto počítači sami.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Chcete-li změnit, co se synchronizuje, otevřete nastavení.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Certifikát zabezpečení serveru se změnil. Potvrďte, že novému certifikátu důvěřujete.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Připojení k serveru bylo ukončeno.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>March</source>
        <translation>březen</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indexuje tuto složku.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Upřesňující nastavení</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>K dispozici je aktualizace</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Složky v tomto seznamu se nikdy nesynchronizují.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Zálohovat do:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synchronizace domovské složky na serveru se složkou Driftwell v tomto počítači.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Seznam složek nelze načíst kvůli systémové chybě.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Změna, oprava nebo odebrání [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Soubory v této složce se synchronizují se serverem.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] nelze nainstalovat. Ve vašem počítači nebyly provedeny žádné změny.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Následující programy používají soubory, které musí instalační program [ProductName] aktualizovat.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Opravit instalaci</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Připraveno k instalaci [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Nesynchronizovat soubory větší než:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Místo v tomto počítači</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Správce vyžaduje dvoufázové ověření. Nejprve ho zapněte pro svůj účet.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Vyberte soubory k synchronizaci</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Odebrat program</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Synchronizuje se: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Spouštět Driftwell po přihlášení</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Začněte přihlášením k serveru.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Synchronizaci sdílené složky nelze zapnout.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Šifrované připojení</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>September</source>
        <translation>září</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] nemá žádné funkce, které by bylo možné změnit.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Další stránky (%1)</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Rychlé nastavení používá doporučené hodnoty. Vlastní nastavení umožňuje zvolit každou z nich.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Pokud byl soubor změněn na obou stranách:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Tento soubor nemá žádné starší verze.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>duben</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Vybrat...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Zelená značka zaškrtnutí znamená, že je soubor aktuální.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Vyberte složky k zálohování</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Vyloučené soubory:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Zrušením propojení se zastaví synchronizace s tímto serverem. Vaše soubory zůstanou v tomto počítači. Pokračovat?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Zobrazit ve Finderu</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Průvodce instalací [ProductName] byl přerušen chybou.</translation>
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
        <translation>Stav synchronizace na první pohled</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Odebere [ProductName] z tohoto počítače. Synchronizované soubory zůstanou na svém místě.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Tuto složku nelze použít k synchronizaci. Vyberte jinou.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>Uživatel %1 s vámi sdílí složku „%2“.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Vyberte složku, kterou nepoužívá žádná jiná synchronizační úloha.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Synchronizované soubory a složky se neodstraní.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Chcete-li používat selektivní synchronizaci, aktualizujte Driftwell.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Jazyk systému</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Používat šifrované připojení (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Začít</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Změnit složku...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Výběr složek</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 znamená bez omezení.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Tisk</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Jen stahování</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Zobrazit stav synchronizace</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Upřesnit</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Ponechat soubory na serveru, když je smažu v tomto počítači</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Vyberte složku na serveru.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>V tomto počítači</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Staženo: %1.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Zpět můžete zkontrolovat svou volbu, kliknutím na tlačítko Zrušit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Potřebujete pomoc s nastavením? Otevřete online příručku.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Zavřete tyto programy a klikněte na tlačítko Opakovat, nebo klikněte na tlačítko Ignorovat a pokračujte i tak.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Použít systémové nastavení proxy</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Nepřijímám podmínky licenční smlouvy</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell zjistil změny ve vašich složkách a synchronizuje je.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Není vybrána žádná složka.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Vyberte další dvojici složek, které se mají synchronizovat.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Zadejte název hostitele serveru, IP adresu nebo ID přenosové služby.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Vítá vás Průvodce instalací [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Vyberte operaci, kterou chcete s [ProductName] provést.</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Toto uživatelské jméno na tomto serveru není platné.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>ID přenosové služby není platné. Zkontrolujte ID a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Něco se pokazilo. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Vaše složka Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Odeslat do: %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Chcete-li nainstalovat [ProductName], musíte přijmout podmínky této smlouvy.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Opravdu chcete zrušit propojení tohoto počítače se serverem?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Ovládání z řádku nabídek</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Odtud můžete pozastavit synchronizaci nebo otevřít nastavení.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Při připojení přes přenosovou službu nelze sdílet soubory.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Změny na síťových jednotkách mohou být zjištěny se zpožděním.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>Zpracováno souborů: %1 z %2</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vybrat jinou složku</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Zjišťování typu připojení...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Vybrané složky se zkopírují na server. Smazáním souboru v tomto počítači se jeho záloha nesmaže.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Přehled serveru</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Místní složka</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Tento soubor je uzamčen jiným programem.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Změna, oprava nebo odebrání instalace</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>V pohotovosti</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Znovu připojit</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Vítá vás Průvodce údržbou [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Opravdu chcete zrušit instalaci [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Tento počítač je s tímto serverem již propojen.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Kopírovat odkaz ke sdílení</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVerze:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Zadejte je znovu.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Odebrat tuto sdílenou složku ze seznamu?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Vaše soubory zůstávají na vašem vlastním serveru.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Sdílenou složku nelze odebrat ze seznamu.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Soukromě, rychle a vždy aktuálně</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Zastavit synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nedávno změněné</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Připojení k serveru je nestabilní. Driftwell se stále pokouší znovu připojit.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací nainstaluje [ProductName] do vašeho počítače.\nPokračujte kliknutím na tlačítko Další, nebo Průvodce instalací ukončete kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Aktivita synchronizace</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>Uživatel %1 s vámi sdílí složku</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>před %1 dny</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Ověřovací kód není správný nebo vypršela jeho platnost.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nebyla nalezena</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Vlastní rozsah</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Tato složka je jen pro čtení. Změny v tomto počítači se nenahrávají.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Neplatný parametr.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>červen</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Poslední nahrání: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Nastavení připojení můžete změnit později.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Přípona souboru</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Vítá vás Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>únor</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Při propojení složky sloučit soubory</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Zálohu nelze dokončit. Zkontrolujte cílovou složku a zkuste to znovu.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čekání</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Soubory s těmito příponami se nesynchronizují.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Zadejte adresu serveru a údaje k účtu.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Tato složka se překrývá se složkou, která se již synchronizuje.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Zrušení instalace</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Nepodporovaná verze</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Na serveru nezbývá pro tuto složku dostatečná kvóta.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musí být číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Dvojitým kliknutím upravíte příponu</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Instalace [ProductName] se nezdařila</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Průvodce je připraven opravit [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>July</source>
        <translation>červenec</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Vždy použít soubor ze serveru</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrola hesla...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Umožňuje změnit, které funkce [ProductName] jsou nainstalovány.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Otestovat připojení</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Seznam složek nelze načíst kvůli chybě sítě.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepřipojeno</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Znovu synchronizovat tyto složky</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorovat</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Dvojitým kliknutím na ikonu otevřete Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Vytvořit složku Driftwell v mé domovské složce</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Otevřít složku Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>úterý</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Spustit [ProductName] nyní</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Zkusit synchronizovat znovu</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Tato verze [ProductName] je již nainstalována.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>srpen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení proběhlo úspěšně.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxy server vyžaduje heslo</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Změnit nainstalované funkce</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Pokud budete pokračovat, bude možná potřeba potom restartovat počítač.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Vyberte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Vyhledat servery v této síti</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Soubory v této složce budou sloučeny se soubory na serveru. Nic se neodstraní.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Omylem jste změnili soubor? Obnovte starší verzi ze serveru.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell se spouští...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>prosinec</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Změnit synchronizační složku</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Číslo portu musí být v rozsahu 1 až 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Přípojný bod není k dispozici</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Vše je připraveno</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Změny nebyly uloženy. Uložit je nyní?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizovat</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell udržuje soubory v tomto počítači a na vašem serveru synchronizované.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Sloučit soubory v této složce se soubory na serveru?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Opravdu chcete odebrat tuto synchronizační úlohu? Již synchronizované soubory zůstanou v tomto počítači.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Dokončit</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Typy souborů vyloučené ze synchronizace</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synchronizační složka v tomto počítači</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Přípony začínají tečkou, například .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Průvodce je připraven odebrat [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Změny byly uloženy.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Kliknutím na ikonu Driftwell na řádku nabídek zobrazíte, co se právě synchronizuje.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Názvy souborů vyloučené ze synchronizace:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Složka:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Nastavit proxy ručně</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Přenosová služba je vypnutá</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Připojení je nestabilní. Driftwell to stále zkouší.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Kliknutím na tlačítko Odebrat odeberete [ProductName] z tohoto počítače.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Znovu synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}Instalace [ProductName] je dokončena</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Uzamčeno jiným programem</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Vyberte složku na serveru a složku v tomto počítači, které se mají synchronizovat.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Chcete-li to zkusit znovu, spusťte instalační program později. Kliknutím na tlačítko Dokončit průvodce zavřete.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Připojení k serveru</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Maximální počet synchronizovaných sdílených složek: %1.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Další &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Zobrazovat ikonu u souborů, které se nesynchronizují</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozí stránky (%1)</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Počkejte prosím, než průvodce nainstaluje [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Ukončit Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>V tomto počítači není dostatek volného místa.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nic nebylo změněno.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>středa</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Pro tuto položku nelze vytvořit odkaz ke sdílení.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Zadejte uživatelské jméno pro proxy server.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Posledních 30 dní</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Změnit...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Průvodce údržbou umožňuje opravit nebo odebrat [ProductName] z tohoto počítače.\nPokračujte kliknutím na tlačítko Další, nebo průvodce ukončete kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Zachovat oba soubory a přejmenovat starší</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Přijímám podmínky licenční smlouvy</translation>
    </message>
    <message>
        <source>October</source>
        <translation>říjen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>květen</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Předchozí verze</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>Aplikace %1 je již spuštěna.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Kliknutím na tlačítko Nainstalovat zahájíte instalaci. Chcete-li zkontrolovat nebo změnit nastavení, klikněte na tlačítko Zpět.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Soubory větší než %1 MB se nesynchronizují.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Instalace [ProductName] byla přerušena</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Podrobnosti připojení</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Modré šipky znamenají, že se soubor synchronizuje.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Propojit další server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Používání nastavení...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Vaše složka Driftwell je nyní synchronizována se serverem.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Fronta přenosů</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Vyberte typ nastavení</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell nelze spustit. Restartujte počítač a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Opraví chybějící nebo poškozené soubory, zástupce a položky registru [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Nainstalovat aktualizaci</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] bude udržovat vybrané složky synchronizované s vaším serverem.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>Instalace [ProductName] proběhla úspěšně.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>K této sdílené složce nemáte oprávnění přístupu.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Ukončit</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>a další (%1)</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Režim synchronizace:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Tato složka patří k jinému serveru.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Tento soubor teď nelze stáhnout.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Vzory bez zástupných znaků musí odpovídat celému názvu souboru.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Vyloučené názvy souborů</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Novější verze [ProductName] je již nainstalována.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Vaše kvóta úložiště na serveru je vyčerpána. Uvolněte místo nebo požádejte o větší kvótu.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Automaticky zavřít programy a potom je znovu spustit</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Místní synchronizační složku nelze najít. Mohla být přesunuta nebo smazána.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Průvodce kopíruje soubory a aktualizuje systém.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Zachovat oba soubory a ke kopii z tohoto počítače přidat název počítače</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>V tomto počítači není dostatek volného místa. Uvolněte místo, aby synchronizace mohla pokračovat.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Aktualizované soubory</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Vaše kvóta úložiště na serveru je vyčerpána.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>před %1 h</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Žádnou složku nelze synchronizovat.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Byl zjištěn konflikt. Obě verze byly zachovány.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Připraveno k odebrání [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Nový jazyk se použije po restartu aplikace Driftwell.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Složka se již používá</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Aktualizace aplikace Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licenční smlouva</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Na serveru</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 je přípojný bod a nelze ho použít jako synchronizační složku.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se používají.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Žádné události k zobrazení.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Změny v této složce v tomto počítači se nenahrávají.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historie synchronizace</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>K této sdílené složce máte přístup jen pro čtení.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Používat jednobarevnou ikonu na řádku nabídek</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Certifikát serveru se změnil. Důvěřovat novému certifikátu?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk je plný</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>před %1 min</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Zadejte ověřovací kód z ověřovací aplikace.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>K této složce nemáte přístup.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nová synchronizační úloha</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Znak * zastupuje libovolné znaky, například ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrola souborů...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Zachovat naposledy změněný soubor</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Nainstalovat</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Tato složka se již synchronizuje s jinou sdílenou složkou.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synchronizace s vlastním serverem</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Prohledat tuto síť</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Vaše soubory na každém počítači, který používáte.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Složka na serveru není k dispozici.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Nastavení je dokončeno. Driftwell nyní synchronizuje vaše soubory.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Připraveno k opravě [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Chcete-li [ProductName] nainstalovat později, spusťte instalační program znovu.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Jedna složka může patřit jen k jedné synchronizační úloze.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Certyfikat serwera zmienił się od ostatniego połączenia.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Nie można utworzyć zadania synchronizacji. Sprawdź połączenie z serwerem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Pliki istniejące w obu miejscach są zachowywane, a nazwa starszej kopii zostaje zmieniona.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu zabezpieczeń serwera.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>styczeń</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Zatrzymać synchronizację tego folderu udostępnionego? Jego pliki pozostaną na serwerze.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Nie zamykaj programów (może być wymagane ponowne uruchomienie)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell jest gotowy.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Przydział folderu udostępnionego został wyczerpany.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Pobieranie zostało zatrzymane.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Zainstaluj program [ProductName] na tym komputerze.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Przez usługę przekaźnikową</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell został skonfigurowany i rozpoczął synchronizację.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell nie może połączyć się z usługą przekaźnikową z powodu błędu systemu. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Wybierz foldery udostępnione na serwerze, które mają być synchronizowane z tym komputerem.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Instalowanie programu [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Więcej wskazówek</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Trwa aktualizacja programu Driftwell. Zaczekaj.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Otwórz Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>piątek</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serwer:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Nie można pobrać: %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Na komputerze nie wprowadzono żadnych zmian.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pokazuj ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Wybierz folder do synchronizacji.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Pliki w odznaczonych folderach są usuwane z tego komputera, ale pozostają na serwerze.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Folder synchronizacji znajduje się na niezamontowanym woluminie. Podłącz wolumin, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Witamy w programie Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Aktualizacja nie powiodła się. Nadal używana jest poprzednia wersja.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>Zaktualizowano: %1</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator programu [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Inicjowanie programu Driftwell...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Działanie kreatora zostało przerwane przed zakończeniem.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Zmień</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Uwierzytelnianie nie powiodło się</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Serwer odpowiedział w sposób niezrozumiały dla programu Driftwell. Zaktualizuj serwer i klienta do najnowszej wersji.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Kierunek synchronizacji tego folderu różni się od ustawionego na serwerze.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Przetwarzanie: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Nie można utworzyć folderu %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Konfiguracja niestandardowa</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Na serwerze działa starsza wersja, której Driftwell nie obsługuje. Zaktualizuj serwer.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Kierunek synchronizacji różni się od ustawienia na serwerze.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Wstecz</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Serwer nie akceptuje połączeń z tego adresu IP. Poproś administratora o dostęp.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizowanie plików: %1</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Dysk na serwerze jest pełny.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Ukończono</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Dysk na tym komputerze jest pełny. Synchronizacja została wstrzymana.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Zatrzymaj synchronizację tego folderu</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Dysk na tym komputerze jest pełny.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odłączanie...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Utracono połączenie sieciowe. Driftwell połączy się ponownie automatycznie.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Kliknij przycisk Zakończ, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Nowa wersja jest gotowa. Kliknij, aby ją zainstalować.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Pliki będą pobierane, ale nigdy nie będą przesyłane.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>czwartek</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Zezwalaj na połączenia przez usługę przekaźnikową</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Folder udostępniony już nie istnieje na serwerze.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Ta wersja programu Driftwell jest zbyt stara dla serwera. Zainstaluj najnowszą wersję.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Kliknij przycisk Anuluj, aby zamknąć kreatora bez instalowania.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca na ten folder.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Usługa przekaźnikowa nie może znaleźć trasy do serwera. Sprawdź, czy serwer jest w trybie online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Folder udostępniony na serwerze nie jest zamontowany. Zamontuj go na serwerze i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Folder nie jest pusty. Jego pliki zostaną scalone z plikami na serwerze.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Linki udostępniania nie są dostępne przy połączeniu przez usługę przekaźnikową.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Przydział na serwerze został wyczerpany.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Wykluczone foldery...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Lokalna baza danych synchronizacji jest uszkodzona. Odłącz folder i powiąż go ponownie, aby ją odbudować.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Kliknij przycisk Napraw, aby naprawić instalację programu [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Kod weryfikacyjny:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>poniedziałek</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Nie można wyświetlić listy poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Synchronizacja tego folderu została wyłączona przez administratora.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Po zakończeniu synchronizacji:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell przestał ponawiać próby (liczba prób: %1). Sprawdź sieć i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Umieść pliki w folderze Driftwell, a pojawią się na serwerze i na pozostałych komputerach.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Niestabilne połączenie</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Kreator ma wszystkie informacje potrzebne do rozpoczęcia instalacji.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Sprawdź ustawienia, a następnie kliknij przycisk Gotowe, aby rozpocząć synchronizację.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Do zainstalowania programu [ProductName] potrzebne są uprawnienia administratora. Czy mimo to kontynuować?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>niedziela</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Folder %1 jest już synchronizowany przez inne zadanie.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wybierz, co chcesz zrobić.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Serwer pod tym adresem zmienił się. Powiąż zadanie synchronizacji ponownie.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Usługa przekaźnikowa jest wyłączona na serwerze. Połącz się bezpośrednio lub włącz usługę.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell nie jest połączony z serwerem.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Samodzielnie wybierz foldery na serwerze i na tym komputerze.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Aby zmienić zakres synchronizacji, otwórz ustawienia.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Certyfikat zabezpieczeń serwera zmienił się. Potwierdź, że ufasz nowemu certyfikatowi.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Połączenie z serwerem zostało zamknięte.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzec</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indeksuje ten folder.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Foldery z tej listy nigdy nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Miejsce docelowe kopii zapasowej:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synchronizacja folderu domowego na serwerze z folderem Driftwell na tym komputerze.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Nie można załadować listy folderów z powodu błędu systemu.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Zmień, napraw lub usuń program [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Pliki w tym folderze są synchronizowane z serwerem.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>Nie można zainstalować programu [ProductName]. Na komputerze nie wprowadzono żadnych zmian.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Następujące programy używają plików, które musi zaktualizować instalator programu [ProductName].</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Napraw instalację</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Gotowe do instalacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Nie synchronizuj plików większych niż:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Miejsce na tym komputerze</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Administrator wymaga weryfikacji dwuetapowej. Najpierw włącz ją dla swojego konta.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Wybierz pliki do synchronizacji</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Usuń program</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Trwa synchronizacja: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Uruchamiaj Driftwell po zalogowaniu</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Aby rozpocząć, zaloguj się do swojego serwera.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Nie można włączyć synchronizacji folderu udostępnionego.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Połączenie szyfrowane</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>September</source>
        <translation>wrzesień</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>Program [ProductName] nie ma funkcji, które można zmienić.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Szybka konfiguracja używa zalecanych ustawień. Konfiguracja niestandardowa pozwala wybrać każde z nich.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Gdy plik został zmieniony po obu stronach:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Ten plik nie ma wcześniejszych wersji.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>kwiecień</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wybierz...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Zielony znacznik wyboru oznacza, że plik jest aktualny.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Wybierz foldery, których kopię zapasową chcesz utworzyć</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Wykluczone pliki:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Odłączenie zatrzyma synchronizację z tym serwerem. Pliki pozostaną na tym komputerze. Czy kontynuować?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w Finderze</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Błąd przerwał działanie Kreatora instalacji programu [ProductName].</translation>
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
        <translation>Stan synchronizacji na pierwszy rzut oka</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Usuwa program [ProductName] z tego komputera. Zsynchronizowane pliki pozostaną na miejscu.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Tego folderu nie można użyć do synchronizacji. Wybierz inny.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>Użytkownik %1 udostępnił Ci folder „%2”.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Wybierz folder, którego nie używa żadne inne zadanie synchronizacji.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Zsynchronizowane pliki i foldery nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Zaktualizuj Driftwell, aby korzystać z synchronizacji selektywnej.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Używaj połączenia szyfrowanego (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Zmień folder...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Wybierz foldery</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 oznacza brak limitu.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>D&amp;rukuj</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Pokaż stan synchronizacji</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Zachowuj pliki na serwerze po usunięciu ich na tym komputerze</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Wybierz folder na serwerze.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Na tym komputerze</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Pobrano: %1.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Wstecz, aby przejrzeć wybór, lub przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Potrzebujesz pomocy przy konfiguracji? Otwórz przewodnik online.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Zamknij te programy i kliknij przycisk Ponów albo kliknij przycisk Ignoruj, aby mimo to kontynuować.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell wykrył zmiany w folderach i synchronizuje je.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Nie wybrano folderu.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Wybierz kolejną parę folderów do synchronizacji.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Wprowadź nazwę hosta serwera, adres IP lub identyfikator przekaźnika.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Witamy w Kreatorze instalacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Wybierz operację, którą chcesz wykonać dla programu [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Ta nazwa użytkownika jest nieprawidłowa na tym serwerze.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Identyfikator przekaźnika jest nieprawidłowy. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Coś poszło nie tak. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Folder Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Wyślij do: %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Aby zainstalować program [ProductName], musisz zaakceptować warunki tej umowy.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Czy na pewno chcesz odłączyć ten komputer od serwera?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Praca z poziomu paska menu</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Stamtąd możesz wstrzymać synchronizację lub otworzyć ustawienia.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Przy połączeniu przez usługę przekaźnikową nie można udostępniać plików.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Zmiany na dyskach sieciowych mogą być wykrywane z opóźnieniem.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>Przetworzono plików: %1 z %2</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Wykrywanie typu połączenia...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Wybrane foldery są kopiowane na serwer. Usunięcie pliku na tym komputerze nie usuwa jego kopii zapasowej.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Przegląd serwera</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Ten plik jest zablokowany przez inny program.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Zmiana, naprawa lub usunięcie instalacji</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>W gotowości</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Witamy w Kreatorze konserwacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Czy na pewno chcesz anulować instalację programu [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Ten komputer jest już powiązany z tym serwerem.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Kopiuj link udostępniania</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nWersja:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe. Wprowadź je ponownie.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Usunąć ten folder udostępniony z listy?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Pliki pozostają na własnym serwerze.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Nie można usunąć folderu udostępnionego z listy.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Prywatnie, szybko i zawsze aktualnie</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Zatrzymaj synchronizację tych folderów</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Ostatnio zmienione</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Połączenie z serwerem jest niestabilne. Driftwell cały czas próbuje połączyć się ponownie.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji zainstaluje program [ProductName] na tym komputerze.\nKliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Aktywność synchronizacji</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>Użytkownik %1 udostępnił Ci folder</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy lub wygasł.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Zakres niestandardowy</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Ten folder jest tylko do odczytu. Zmiany na tym komputerze nie są przesyłane.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Nieprawidłowy parametr.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>czerwiec</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ostatnie przesłanie: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Ustawienia połączenia możesz zmienić później.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Rozszerzenie pliku</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Witamy w programie Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>luty</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Scalaj pliki podczas powiązywania folderu</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Nie można ukończyć tworzenia kopii zapasowej. Sprawdź folder docelowy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Pliki z tymi rozszerzeniami nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Wprowadź adres serwera i dane konta.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ten folder pokrywa się z folderem, który jest już synchronizowany.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Anulowanie instalacji</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Nieobsługiwana wersja</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Pozostały przydział na serwerze nie wystarcza na ten folder.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musi być liczbą od 1 do 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Kliknij dwukrotnie, aby edytować rozszerzenie</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Instalacja programu [ProductName] nie powiodła się</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Kreator jest gotowy do naprawy programu [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>July</source>
        <translation>lipiec</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Zawsze używaj pliku z serwera</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Sprawdzanie hasła...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Umożliwia zmianę zainstalowanych funkcji programu [ProductName].</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Przetestuj połączenie</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Nie można załadować listy folderów z powodu błędu sieci.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Brak połączenia</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoruj</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Kliknij dwukrotnie ikonę, aby otworzyć Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Utwórz folder Driftwell w moim folderze domowym</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Otwórz folder Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>wtorek</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Uruchom teraz program [ProductName]</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Spróbuj zsynchronizować ponownie</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Ta wersja programu [ProductName] jest już zainstalowana.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>sierpień</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Połączono pomyślnie.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Serwer proxy wymaga hasła</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Zmień zainstalowane funkcje</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Jeśli będziesz kontynuować, konieczne może być późniejsze ponowne uruchomienie komputera.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Wyszukaj serwery w tej sieci</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Pliki w tym folderze zostaną scalone z plikami na serwerze. Nic nie zostanie usunięte.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Plik zmieniony przez pomyłkę? Przywróć wcześniejszą wersję z serwera.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Uruchamianie programu Driftwell...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>grudzień</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Numer portu musi mieścić się w zakresie od 1 do 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Punkt montowania niedostępny</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Wszystko gotowe</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Zmiany nie zostały zapisane. Zapisać je teraz?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizuj</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell synchronizuje pliki na tym komputerze z plikami na serwerze.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Scalić pliki w tym folderze z plikami na serwerze?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Czy na pewno chcesz usunąć to zadanie synchronizacji? Już zsynchronizowane pliki pozostaną na tym komputerze.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Typy plików wykluczone z synchronizacji</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Przesłano</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Folder synchronizacji na tym komputerze</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Rozszerzenia zaczynają się od kropki, na przykład .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Kreator jest gotowy do usunięcia programu [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Zmiany zostały zapisane.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Kliknij ikonę Driftwell na pasku menu, aby zobaczyć, co jest synchronizowane.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nazwy plików wykluczone z synchronizacji:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Skonfiguruj serwer proxy ręcznie</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Usługa przekaźnikowa wyłączona</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Połączenie jest niestabilne. Driftwell ponawia próby.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Kliknij przycisk Usuń, aby usunąć program [ProductName] z tego komputera.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}Program [ProductName] został zainstalowany</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Zablokowany przez inny program</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Wybierz folder na serwerze i folder na tym komputerze, które mają być synchronizowane.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Aby spróbować ponownie, uruchom instalator później. Kliknij przycisk Zakończ, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Połącz się z serwerem</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Maksymalna liczba synchronizowanych folderów udostępnionych: %1.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Przesyłanie...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Dalej &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Pokazuj ikonę na plikach, które nie są synchronizowane</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Zaczekaj, aż kreator zainstaluje program [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Zakończ Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nic nie zostało zmienione.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>środa</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Nie można utworzyć linku udostępniania dla tego elementu.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Wprowadź nazwę użytkownika dla serwera proxy.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Ostatnie 30 dni</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Zmień...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Kreator konserwacji umożliwia naprawę lub usunięcie programu [ProductName] z tego komputera.\nKliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Zachowaj oba pliki i zmień nazwę starszego</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>October</source>
        <translation>październik</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Poprzednie wersje</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>Program %1 jest już uruchomiony.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Kliknij przycisk Zainstaluj, aby rozpocząć. Aby przejrzeć lub zmienić ustawienia, kliknij przycisk Wstecz.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Pliki większe niż %1 MB nie są synchronizowane.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Instalacja programu [ProductName] została przerwana</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Szczegóły połączenia</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Niebieskie strzałki oznaczają, że plik jest synchronizowany.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Powiąż inny serwer</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Folder Driftwell jest teraz zsynchronizowany z serwerem.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Kolejka transferu</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Wybierz typ konfiguracji</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Nie można uruchomić programu Driftwell. Uruchom ponownie komputer i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Naprawia brakujące lub uszkodzone pliki, skróty i wpisy rejestru programu [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>Program [ProductName] będzie synchronizować wybrane foldery z serwerem.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>Program [ProductName] został pomyślnie zainstalowany.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Nie masz uprawnień dostępu do tego folderu udostępnionego.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>i jeszcze %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Tryb synchronizacji:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ten folder należy do innego serwera.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Tego pliku nie można teraz pobrać.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Wzorce bez symbolu wieloznacznego muszą pasować do całej nazwy pliku.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Wykluczone nazwy plików</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Nowsza wersja programu [ProductName] jest już zainstalowana.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Przydział miejsca na serwerze został wyczerpany. Zwolnij miejsce lub poproś o większy przydział.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Automatycznie zamknij programy i uruchom je ponownie później</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Nie można znaleźć lokalnego folderu synchronizacji. Mógł zostać przeniesiony lub usunięty.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Kreator kopiuje pliki i aktualizuje system.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj ponownie tego komunikatu</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Zachowaj oba pliki i dodaj nazwę komputera do kopii z tego komputera</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca. Zwolnij miejsce, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Przydział miejsca na serwerze został wyczerpany.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Brak folderów, które można synchronizować.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Wykryto konflikt. Zachowano obie wersje.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Gotowe do usunięcia programu [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Nowy język zostanie użyty po ponownym uruchomieniu programu Driftwell.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Folder jest już używany</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Aktualizowanie programu Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Na serwerze</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 jest punktem montowania i nie może być używany jako folder synchronizacji.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Niektóre pliki, które trzeba zaktualizować, są w użyciu.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Brak zdarzeń do wyświetlenia.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Zmiany w tym folderze na tym komputerze nie są przesyłane.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historia synchronizacji</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Masz dostęp do tego folderu udostępnionego tylko do odczytu.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Używaj monochromatycznej ikony na pasku menu</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Certyfikat serwera zmienił się. Czy ufać nowemu certyfikatowi?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Dysk pełny</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Wprowadź kod weryfikacyjny z aplikacji uwierzytelniającej.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Nie masz dostępu do tego folderu.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nowe zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Użyj znaku *, aby dopasować dowolne znaki, na przykład ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Sprawdzanie plików...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Zachowaj plik zmieniony jako ostatni</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Zainstaluj</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Ten folder jest już synchronizowany z innym folderem udostępnionym.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synchronizuj z własnym serwerem</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Przeszukaj tę sieć</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Wszystkie pliki na każdym komputerze, z którego korzystasz.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Folder na serwerze jest niedostępny.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Konfiguracja została ukończona. Driftwell synchronizuje teraz pliki.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Gotowe do naprawy programu [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Aby zainstalować program [ProductName] później, uruchom ponownie instalator.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Jeden folder może należeć tylko do jednego zadania synchronizacji.</translation>
    </message>
</context>
</TS>

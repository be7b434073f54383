<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Sunucunun sertifikası son bağlantıdan bu yana değişti.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Eşitleme görevi oluşturulamadı. Sunucuyla bağlantıyı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Tanıtımı göster</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Her iki yerde de bulunan dosyalar korunur ve eski kopyanın adı değiştirilir.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Son 7 gün</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Sunucunun güvenlik sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Bu paylaşılan klasörün eşitlenmesi durdurulsun mu? Klasördeki dosyalar sunucuda kalır.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Hesap:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Programları kapatma (yeniden başlatma gerekebilir)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell hazır.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Paylaşılan klasörün kotası doldu.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>İndirme durduruldu.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>[ProductName] uygulamasını bu bilgisayara kurun.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Aktarma hizmeti üzerinden</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell'in kurulumu tamamlandı ve eşitleme başladı.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell bir sistem hatası nedeniyle aktarma hizmetine ulaşamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Sunucuyla güvenli bir bağlantı kurulamadı.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Sunucudaki hangi paylaşılan klasörlerin bu bilgisayarla eşitleneceğini seçin.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}[ProductName] yükleniyor</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Daha fazla ipucu</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Eşitleme görevi ekle</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell güncelleniyor. Lütfen bekleyin.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Driftwell'i aç</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Sunucu:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1 indirilemedi.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Bilgisayarınızda hiçbir değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Dosya ve klasörlerde eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Eşitlenecek klasörü seçin.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Seçimini kaldırdığınız klasörlerdeki dosyalar bu bilgisayardan kaldırılır ancak sunucuda kalır.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Eşitleme klasörü bağlı olmayan bir birimde. Eşitlemeye devam etmek için birimi bağlayın.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Driftwell'e hoş geldiniz!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Güncelleme başarısız oldu. Önceki sürüm kullanılmaya devam ediyor.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 güncellendi</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Kurulumu</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell başlatılıyor...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Sihirbaz tamamlanmadan durduruldu.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Değiştir</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Kimlik doğrulama başarısız</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Sunucu, Driftwell'in anlamadığı bir yanıt verdi. Sunucuyu ve istemciyi en son sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Bu klasörün eşitleme yönü, sunucuda ayarlanandan farklı.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>İşleniyor: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı kaldır</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>%1 klasörü oluşturulamadı.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Özel kurulum</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Sunucuda Driftwell'in desteklemediği eski bir sürüm çalışıyor. Sunucuyu güncelleyin.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Eşitleme yönü, sunucudaki ayardan farklı.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Geri</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Sunucu bu IP adresinden gelen bağlantıları kabul etmiyor. Erişim için yöneticinize başvurun.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 dosya eşitleniyor</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Sunucudaki disk dolu.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 hakkında</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Bu bilgisayardaki disk dolu. Eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Bu klasörü eşitlemeyi durdur</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Bu bilgisayardaki disk dolu.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Bağlantı kaldırılıyor...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Ağ bağlantısı kesildi. Driftwell otomatik olarak yeniden bağlanacak.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Sihirbazı kapatmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Yeni bir sürüm hazır. Yüklemek için tıklayın.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Bu klasör için yalnızca okuma erişiminiz var. Dosyalar indirilir ancak hiçbir zaman karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Aktarma hizmeti üzerinden bağlantılara izin ver</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Paylaşılan klasör artık sunucuda yok.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Driftwell'in bu sürümü sunucu için çok eski. En son sürümü yükleyin.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Yüklemeden sihirbazdan çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Bu bilgisayarda bu klasör için yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Aktarma hizmeti sunucunuza giden bir yol bulamadı. Sunucunun çevrimiçi olduğunu kontrol edin.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Sunucudaki paylaşılan klasör bağlı değil. Klasörü sunucuda bağlayıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Klasör boş değil. İçindeki dosyalar sunucudaki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Paylaşım bağlantıları aktarma hizmeti üzerinden kullanılamaz.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Sunucudaki kotanız doldu.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Hariç tutulan klasörler...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Yerel eşitleme veritabanı bozuk. Veritabanını yeniden oluşturmak için klasörün bağlantısını kaldırıp klasörü yeniden bağlayın.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>[ProductName] kurulumunu onarmak için Onar düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Doğrulama kodu:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Bu dosyanın önceki sürümleri listelenemiyor.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Bu klasörün eşitlenmesi yöneticiniz tarafından kapatıldı.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Eşitleme bittiğinde:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell %1 denemeden sonra vazgeçti. Ağınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Driftwell klasörüne koyduğunuz dosyalar sunucunuzda ve diğer bilgisayarlarınızda görünür.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Bağlantı kararsız</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Sihirbaz, yüklemeye başlamak için gereken her şeye sahip.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Ayarlarınızı kontrol edin, ardından eşitlemeyi başlatmak için Bitti düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>[ProductName] uygulamasını yüklemek için yönetici haklarına ihtiyacınız var. Yine de devam edilsin mi?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>%1 klasörü zaten başka bir görev tarafından eşitleniyor.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Ne yapmak istediğinizi seçin.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Bu adresteki sunucu değişti. Eşitleme görevini yeniden bağlayın.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Aktarma hizmeti sunucuda kapalı. Doğrudan bağlanın veya hizmeti açın.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell bir sunucuya bağlı değil.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Bağlantı türü</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Sunucudaki ve bu bilgisayardaki klasörleri kendiniz seçin.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Nelerin eşitleneceğini değiştirmek için ayarları açın.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Sunucunun güvenlik sertifikası değişti. Yeni sertifikaya güvendiğinizi onaylayın.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Sunucuyla bağlantı kapatıldı.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell bu klasörü dizinliyor.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Bağlantı noktası:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Güncelleme mevcut</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Bu listedeki klasörler hiçbir zaman eşitlenmez.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Yedekleme konumu:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Sunucudaki ana klasörünüzü bu bilgisayardaki bir Driftwell klasörüyle eşitleyin.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Klasör listesi bir sistem hatası nedeniyle yüklenemedi.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>[ProductName] uygulamasını değiştirin, onarın veya kaldırın.</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Bu klasördeki dosyalar sunucuyla eşitlenir.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] yüklenemedi. Bilgisayarınızda hiçbir değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>En büyük dosya boyutu</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Aşağıdaki programlar, [ProductName] kurulum programının güncellemesi gereken dosyaları kullanıyor.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Kurulumu onar</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>[ProductName] yüklenmeye hazır</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Şundan büyük dosyaları eşitleme:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Dil:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Bu bilgisayardaki alan</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Yöneticiniz iki adımlı doğrulamayı zorunlu tutuyor. Önce hesabınız için bu özelliği açın.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Eşitlenecek dosyaları seçin</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Programı kaldır</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Şu anda eşitlenen: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Oturum açtığımda Driftwell'i başlat</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Başlamak için sunucunuzda oturum açın.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Paylaşılan klasör eşitleme için etkinleştirilemedi.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Şifreli bağlantı</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bitiş:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] uygulamasının değiştirilebilecek bir özelliği yok.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Hızlı kurulum önerilen ayarları kullanır. Özel kurulumda her ayarı kendiniz seçersiniz.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Bir dosya her iki tarafta da değiştirildiğinde:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Bu dosyanın önceki sürümü yok.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Yeniden dene</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seç...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Yeşil onay işareti, dosyanın güncel olduğunu gösterir.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Yedeklenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Hariç tutulan dosyalar:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Bağlantıyı kaldırırsanız bu sunucuyla eşitleme durur. Dosyalarınız bu bilgisayarda kalır. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Finder'da göster</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>[ProductName] Kurulum Sihirbazı bir hata nedeniyle durdu.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>Bir bakışta eşitleme durumu</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>[ProductName] uygulamasını bu bilgisayardan kaldırır. Eşitlenmiş dosyalarınız olduğu yerde kalır.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Bu klasör eşitleme için kullanılamaz. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1, “%2” klasörünü sizinle paylaştı.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Başka hiçbir eşitleme görevinin kullanmadığı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Eşitlenmiş dosya ve klasörleriniz silinmez.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için Driftwell'i güncelleyin.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Şifreli bağlantı kullan (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başlat</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Klasörü değiştir...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Klasörleri seçin</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0, sınır olmadığı anlamına gelir.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Yazdır</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indir</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Eşitleme durumunu göster</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Bu bilgisayarda sildiğimde dosyaları sunucuda tut</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Sunucuda bir klasör seçin.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Bu bilgisayarda</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 indirildi.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Seçiminizi gözden geçirmek için Geri düğmesine, sihirbazdan çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Kurulum için yardım mı gerekiyor? Çevrimiçi kılavuzu açın.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Bu programları kapatıp Yeniden dene düğmesine tıklayın veya yine de devam etmek için Yoksay düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Sistem proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Kullanımdaki dosyalar</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul &amp;etmiyorum</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell klasörlerinizdeki değişiklikleri algıladı ve bunları eşitliyor.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Hiçbir klasör seçilmedi.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Eşitlenecek başka bir klasör çifti seçin.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Sunucunun ana bilgisayar adını, IP adresini veya aktarma kimliğini girin.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}[ProductName] Kurulum Sihirbazına hoş geldiniz</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>[ProductName] üzerinde gerçekleştirmek istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Kullanıcı adı bu sunucuda geçerli değil.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Aktarma kimliği geçersiz. Kimliği kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Bir sorun oluştu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Driftwell klasörünüz</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Şuraya gönder: %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>[ProductName] uygulamasını yüklemek için bu sözleşmenin koşullarını kabul etmeniz gerekir.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Bu bilgisayarın sunucuyla bağlantısını kaldırmak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Menü çubuğundan çalışın</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Buradan eşitlemeyi duraklatabilir veya ayarlarınızı açabilirsiniz.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Dosyalar aktarma bağlantısı üzerinden paylaşılamaz.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ağ sürücülerindeki değişiklikler gecikmeli olarak algılanabilir.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%2 dosyadan %1 tanesi işlendi</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Bir klasör seçin</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seç</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Bağlantı türü algılanıyor...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Seçtiğiniz klasörler sunucuya kopyalanır. Bu bilgisayarda bir dosyayı silmeniz, dosyanın yedeğini silmez.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Sunucuya genel bakış</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Proxy sunucusunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Yerel klasör</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Bu dosya başka bir program tarafından kilitlendi.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Kurulumu değiştirme, onarma veya kaldırma</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Proxy yok</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}[ProductName] Bakım Sihirbazına hoş geldiniz</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName] kurulumunu iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Bu bilgisayar zaten bu sunucuya bağlı.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Paylaşım bağlantısını kopyala</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nSürüm:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Kullanıcı adı veya parola yanlış. Bunları yeniden girin.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Bu paylaşılan klasör listeden kaldırılsın mı?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Dosyalarınız kendi sunucunuzda kalır.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Paylaşılan klasör listeden kaldırılamadı.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Özel, hızlı ve her zaman güncel</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Bu klasörleri eşitlemeyi durdur</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Son değiştirilenler</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Sunucuyla bağlantı kararsız. Driftwell yeniden bağlanmayı denemeye devam ediyor.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını bilgisayarınıza yükleyecek.\nDevam etmek için İleri düğmesine, Kurulum Sihirbazından çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Eşitleme etkinliği</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 sizinle bir klasör paylaştı</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Doğrulama kodu yanlış veya süresi dolmuş.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Özel aralık</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Bu klasör salt okunur. Bu bilgisayarda yapılan değişiklikler karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Geçersiz parametre.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Son karşıya yükleme: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Bağlantı ayarlarını daha sonra değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dosya uzantısı</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Driftwell'e hoş geldiniz</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Bir klasör bağlanırken dosyaları birleştir</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Yedekleme tamamlanamadı. Hedef klasörü kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Başlangıç:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Bu uzantılara sahip dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Sunucunuzun adresini ve hesap bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Bu klasör, zaten eşitlenen bir klasörle örtüşüyor.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Kurulumu iptal et</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>İzin reddedildi</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Sürüm desteklenmiyor</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Sunucuda bu klasör için yeterli kota kalmadı.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Bağlantı noktası 1 ile 65535 arasında bir sayı olmalıdır.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Uzantıyı düzenlemek için çift tıklayın</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}[ProductName] kurulumu başarısız oldu</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Sihirbaz, [ProductName] uygulamasını onarmaya hazır.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Her zaman sunucudaki dosyayı kullan</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Parolanız kontrol ediliyor...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>[ProductName] uygulamasının hangi özelliklerinin yükleneceğini değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Bağlantıyı test et</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Klasör listesi bir ağ hatası nedeniyle yüklenemedi.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Bu klasörleri yeniden eşitle</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Yok&amp;say</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Driftwell'i açmak için simgeye çift tıklayın.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Ana klasörümde bir Driftwell klasörü oluştur</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Driftwell klasörünü aç</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>[ProductName] uygulamasını şimdi &amp;başlat</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Güvenlik uyarısı</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Yeniden eşitlemeyi dene</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>[ProductName] uygulamasının bu sürümü zaten yüklü.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarılı.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxy sunucusu parola gerektiriyor</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Yüklü özellikleri değiştir</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Devam ederseniz daha sonra bilgisayarınızı yeniden başlatmanız gerekebilir.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Eşitlenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Bu ağdaki sunucuları ara</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Bu klasördeki dosyalar sunucudaki dosyalarla birleştirilecek. Hiçbir şey silinmez.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Bir dosyayı yanlışlıkla mı değiştirdiniz? Sunucudan önceki bir sürümü geri yükleyin.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell başlıyor...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Eşitleme klasörünü değiştir</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Bağlantı noktası numarası 1 ile 65535 arasında olmalıdır.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Bağlama noktası kullanılamıyor</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Her şey hazır</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Değişiklikleriniz kaydedilmedi. Şimdi kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşitle</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell bu bilgisayardaki ve sunucunuzdaki dosyaları eşitlenmiş tutar.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Bu klasördeki dosyalar sunucudakilerle birleştirilsin mi?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Bu eşitleme görevini kaldırmak istediğinizden emin misiniz? Önceden eşitlenmiş dosyalar bu bilgisayarda kalır.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Eşitlenmeyecek dosya türleri</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Karşıya yüklendi</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Bu bilgisayardaki eşitleme klasörü</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Uzantılar nokta ile başlar, örneğin .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Sihirbaz, [ProductName] uygulamasını kaldırmaya hazır.</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Değişiklikleriniz kaydedildi.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Nelerin eşitlendiğini görmek için menü çubuğundaki Driftwell simgesine tıklayın.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Eşitlenmeyecek dosya adları:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy'yi el ile ayarla</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Aktarma hizmeti devre dışı</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Bağlantı kararsız. Driftwell denemeye devam ediyor.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>[ProductName] uygulamasını bu bilgisayardan kaldırmak için Kaldır düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Bu klasörü yeniden eşitle</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] yüklendi</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Başka bir program tarafından kilitlendi</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Sunucuda bir klasör ve bu bilgisayarda bir klasör seçerek bunları eşitlenmiş tutun.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Yeniden denemek için yükleyiciyi daha sonra tekrar çalıştırın. Sihirbazı kapatmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Sunucunuza bağlanın</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>En fazla %1 paylaşılan klasörü eşitleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;İleri &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Eşitlenmeyen dosyalarda simge göster</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Sihirbaz [ProductName] uygulamasını yüklerken lütfen bekleyin.</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Driftwell'den çık</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Hiçbir şey değiştirilmedi.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma tarihi</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Bu öğe için paylaşım bağlantısı oluşturulamaz.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Proxy sunucusu için kullanıcı adını girin.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Son 30 gün</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Değiştir...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Bakım Sihirbazı, bu bilgisayardaki [ProductName] uygulamasını onarmanızı veya kaldırmanızı sağlar.\nDevam etmek için İleri düğmesine, çıkmak için İptal düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>İki dosyayı da koru ve eski olanı yeniden adlandır</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını &amp;kabul ediyorum</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Önceki sürümler</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 zaten çalışıyor.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Başlamak için Yükle düğmesine tıklayın. Ayarlarınızı gözden geçirmek veya değiştirmek için Geri düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>%1 MB üzerindeki dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}[ProductName] kurulumu yarıda kesildi</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Bağlantı ayrıntıları</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Mavi oklar, dosyanın eşitlenmekte olduğunu gösterir.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Başka bir sunucuya bağla</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Bir kullanıcı adı girin.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Driftwell klasörünüz artık sunucuyla eşitlenmiş durumda.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtreler</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Aktarım kuyruğu</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Kurulum türünü seçin</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell başlatılamadı. Bilgisayarınızı yeniden başlatıp tekrar deneyin.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>[ProductName] uygulamasının eksik veya bozuk dosyalarını, kısayollarını ve kayıt defteri girdilerini düzeltir.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ile %2 arası</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Güncellemeyi yükle</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName], seçtiğiniz klasörleri sunucunuzla eşitlenmiş tutar.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] başarıyla yüklendi.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Bu paylaşılan klasöre erişim izniniz yok.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Ç&amp;ıkış</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ve %1 tane daha</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Durum bilgisi</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Eşitleme modu:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Salt okunur klasör</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Bu klasör başka bir sunucuya ait.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Bu dosya şu anda indirilemiyor.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Joker karakter içermeyen desenler dosya adının tamamıyla eşleşmelidir.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Hariç tutulan dosya adları</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>[ProductName] uygulamasının daha yeni bir sürümü zaten yüklü.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Sunucudaki depolama kotanız doldu. Yer açın veya daha büyük bir kota isteyin.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>Programları &amp;otomatik olarak kapat ve daha sonra yeniden başlat</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Yerel eşitleme klasörü bulunamıyor. Taşınmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Sihirbaz dosyaları kopyalıyor ve sisteminizi güncelliyor.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>İki dosyayı da koru ve bu bilgisayardan gelen kopyaya bilgisayar adını ekle</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok. Eşitlemeye devam etmek için yer açın.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Sunucudaki depolama kotanız doldu.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Eşitlenebilecek klasör yok.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Bir çakışma bulundu. İki sürüm de korundu.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>[ProductName] kaldırılmaya hazır</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Yeni dil, Driftwell yeniden başlatıldıktan sonra kullanılır.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Klasör zaten kullanımda</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Driftwell güncelleniyor...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisans sözleşmesi</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Sunucuda</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 bir bağlama noktası olduğundan eşitleme klasörü olarak kullanılamaz.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar kullanımda.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Gösterilecek olay yok.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Bu klasörde bu bilgisayarda yapılan değişiklikler karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Eşitleme geçmişi</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Bu paylaşılan klasör için yalnızca okuma erişiminiz var.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Tek renkli menü çubuğu simgesi kullan</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Sunucunun sertifikası değişti. Yeni sertifikaya güvenilsin mi?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk dolu</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Kimlik doğrulayıcı uygulamanızdaki doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Bu klasöre erişiminiz yok.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Yeni eşitleme görevi</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Herhangi bir karakter dizisiyle eşleşmek için * kullanın, örneğin ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dosyalar kontrol ediliyor...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>En son değiştirilen dosyayı koru</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Bu klasör zaten başka bir paylaşılan klasörle eşitleniyor.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Kendi sunucunuzla eşitleyin</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Bu ağda ara</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Dosyalarınız, kullandığınız her bilgisayarda.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Sunucudaki klasör kullanılamıyor.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Kurulum tamamlandı. Driftwell artık dosyalarınızı eşitliyor.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>[ProductName] onarılmaya hazır</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>[ProductName] uygulamasını daha sonra yüklemek için yükleyiciyi yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Bir klasör yalnızca bir eşitleme görevine ait olabilir.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Сертификат сервера изменился с момента последнего подключения.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Не удалось создать задачу синхронизации. Проверьте подключение к серверу и повторите попытку.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показать краткое руководство</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Файлы, которые есть в обоих местах, сохраняются, а более старая копия переименовывается.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Последние 7 дней</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Не удалось проверить сертификат безопасности сервера.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>январь</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Прекратить синхронизацию этой общей папки? Её файлы останутся на сервере.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Учётная запись:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Не закрывать программы (может потребоваться перезагрузка)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell готов к работе.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Квота общей папки исчерпана.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Скачивание остановлено.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Установите [ProductName] на этот компьютер.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Через службу ретрансляции</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell настроен и начал синхронизацию.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell не удалось связаться со службой ретрансляции из-за системной ошибки. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Не удалось установить защищённое подключение к серверу.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Выберите общие папки на сервере, которые нужно синхронизировать с этим компьютером.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Установка [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Другие советы</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Добавить задачу синхронизации</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell обновляется. Подождите.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Открыть Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>пятница</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Сервер:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Не удалось скачать %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Изменения в компьютер не вносились.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Показывать значки состояния синхронизации на файлах и папках</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Выберите папку для синхронизации.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Файлы в папках, с которых снят выбор, удаляются с этого компьютера, но остаются на сервере.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Папка синхронизации находится на несмонтированном томе. Подключите том, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Добро пожаловать в Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Не удалось выполнить обновление. Используется предыдущая версия.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>Обновлено: %1</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Инициализация Driftwell...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Работа мастера прервана до завершения.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Изменить</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ошибка проверки подлинности</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Сервер отправил ответ, который Driftwell не может распознать. Обновите сервер и клиент до последней версии.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Направление синхронизации этой папки отличается от заданного на сервере.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Обработка: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Не удалось создать папку %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Выборочная настройка</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>На сервере установлена устаревшая версия, которую Driftwell не поддерживает. Обновите сервер.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Направление синхронизации отличается от настройки на сервере.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Назад</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Сервер не принимает подключения с этого IP-адреса. Обратитесь к администратору за доступом.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Синхронизация файлов: %1</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Диск на сервере заполнен.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Диск на этом компьютере заполнен. Синхронизация приостановлена.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Прекратить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Диск на этом компьютере заполнен.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отвязка...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Сетевое подключение потеряно. Driftwell подключится повторно автоматически.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Нажмите «Завершить», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Доступна новая версия. Щёлкните, чтобы установить её.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>У вас есть доступ к этой папке только для чтения. Файлы будут скачиваться, но не будут отправляться на сервер.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>четверг</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Разрешить подключения через службу ретрансляции</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Общая папка больше не существует на сервере.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Эта версия Driftwell слишком старая для сервера. Установите последнюю версию.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Нажмите «Отмена», чтобы выйти из мастера без установки.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>На этом компьютере недостаточно свободного места для этой папки.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Службе ретрансляции не удалось найти маршрут к вашему серверу. Убедитесь, что сервер в сети.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Общая папка на сервере не смонтирована. Смонтируйте её на сервере и повторите попытку.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Папка не пуста. Её файлы будут объединены с файлами на сервере.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>При подключении через службу ретрансляции ссылки для общего доступа не поддерживаются.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ваша квота на сервере исчерпана.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Исключённые папки...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Локальная база данных синхронизации повреждена. Отвяжите папку и привяжите её снова, чтобы восстановить базу.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Нажмите «Восстановить», чтобы исправить установку [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Код подтверждения:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>понедельник</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Не удалось получить список предыдущих версий этого файла.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Синхронизация этой папки отключена администратором.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>После завершения синхронизации:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell прекратил попытки (выполнено попыток: %1). Проверьте сеть и повторите попытку.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Поместите файлы в папку Driftwell, и они появятся на вашем сервере и других ваших компьютерах.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Нестабильное подключение</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Мастер готов начать установку.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Проверьте настройки и нажмите «Готово», чтобы начать синхронизацию.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Для установки [ProductName] требуются права администратора. Всё равно продолжить?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>воскресенье</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Папка %1 уже синхронизируется другой задачей.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Выберите нужное действие.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Сервер по этому адресу изменился. Привяжите задачу синхронизации заново.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Служба ретрансляции на сервере отключена. Подключитесь напрямую или включите службу.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell не подключён к серверу.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Самостоятельно выберите папки на сервере и на этом компьютере.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Чтобы изменить состав синхронизируемых данных, откройте настройки.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Сертификат безопасности сервера изменился. Подтвердите, что доверяете новому сертификату.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Подключение к серверу закрыто.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>March</source>
        <translation>март</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell индексирует эту папку.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Папки из этого списка никогда не синхронизируются.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Резервное копирование в:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Синхронизация домашней папки на сервере с папкой Driftwell на этом компьютере.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Не удалось загрузить список папок из-за системной ошибки.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Изменение, восстановление или удаление [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Файлы в этой папке синхронизируются с сервером.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>Не удалось установить [ProductName]. Изменения в компьютер не вносились.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Следующие программы используют файлы, которые должна обновить программа установки [ProductName].</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Восстановить установку</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Всё готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Не синхронизировать файлы размером более:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Место на этом компьютере</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Администратор требует двухэтапную проверку. Сначала включите её для своей учётной записи.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Выберите файлы для синхронизации</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Удалить программу</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Синхронизируется: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Запускать Driftwell при входе в систему</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Чтобы начать, войдите на свой сервер.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Не удалось включить синхронизацию общей папки.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Зашифрованное подключение</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>По:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>September</source>
        <translation>сентябрь</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>В [ProductName] нет компонентов, которые можно изменить.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие %1 стр.</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Быстрая настройка использует рекомендуемые параметры. Выборочная настройка позволяет задать каждый параметр самостоятельно.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Если файл изменён с обеих сторон:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>У этого файла нет более ранних версий.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>апрель</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Зелёная галочка означает, что файл актуален.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Выберите папки для резервного копирования</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Исключённые файлы:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>После отвязки синхронизация с этим сервером прекратится. Ваши файлы останутся на этом компьютере. Продолжить?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Работа мастера установки [ProductName] прервана из-за ошибки.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>Состояние синхронизации с первого взгляда</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Удаление [ProductName] с этого компьютера. Синхронизированные файлы останутся на месте.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Эту папку нельзя использовать для синхронизации. Выберите другую.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>Пользователь %1 предоставил вам общий доступ к папке «%2».</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Выберите папку, которая не используется другими задачами синхронизации.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Синхронизированные файлы и папки не будут удалены.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Чтобы использовать выборочную синхронизацию, обновите Driftwell.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Использовать зашифрованное подключение (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Изменить папку...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Выбор папок</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 — без ограничений.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Пе&amp;чать</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Показать состояние синхронизации</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Сохранять файлы на сервере при их удалении на этом компьютере</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Выберите папку на сервере.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>На этом компьютере</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Скачано: %1.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Нажмите «Назад», чтобы проверить свой выбор, или «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>ноябрь</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Нужна помощь с настройкой? Откройте онлайн-руководство.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Закройте эти программы и нажмите «Повторить» или нажмите «Пропустить», чтобы всё равно продолжить.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Я н&amp;е принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell обнаружил изменения в ваших папках и синхронизирует их.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Папка не выбрана.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Выберите ещё одну пару папок для синхронизации.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Введите имя узла сервера, IP-адрес или ID ретрансляции.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Выберите операцию, которую нужно выполнить с [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Это имя пользователя недействительно на данном сервере.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Недопустимый ID ретрансляции. Проверьте ID и повторите попытку.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Что-то пошло не так. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Ваша папка Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Отправить в %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Чтобы установить [ProductName], необходимо принять условия этого соглашения.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Вы действительно хотите отвязать этот компьютер от сервера?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Работа из строки меню</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Оттуда можно приостановить синхронизацию или открыть настройки.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>При подключении через службу ретрансляции нельзя предоставлять общий доступ к файлам.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Изменения на сетевых дисках могут обнаруживаться с задержкой.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>Обработано файлов: %1 из %2</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Определение типа подключения...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Выбранные папки копируются на сервер. При удалении файла на этом компьютере его резервная копия не удаляется.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Обзор сервера</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Локальная папка</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Этот файл заблокирован другой программой.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Изменение, восстановление или удаление установки</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Режим ожидания</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Переподключиться</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Вас приветствует мастер обслуживания [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Вы действительно хотите отменить установку [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Этот компьютер уже привязан к этому серверу.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Копировать ссылку для общего доступа</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nВерсия:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Неверное имя пользователя или пароль. Введите их ещё раз.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Удалить эту общую папку из списка?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Ваши файлы остаются на вашем собственном сервере.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Не удалось удалить общую папку из списка.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Конфиденциально, быстро и всегда актуально</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Прекратить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Недавно изменённые</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Подключение к серверу нестабильно. Driftwell продолжает попытки переподключения.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки установит [ProductName] на ваш компьютер.\nНажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Внимательно прочитайте следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Активность синхронизации</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>Пользователь %1 предоставил вам общий доступ к папке</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Код подтверждения неверен или срок его действия истёк.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Произвольный период</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Эта папка доступна только для чтения. Изменения на этом компьютере не отправляются на сервер.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Недопустимый параметр.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>июнь</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Последняя отправка: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Настройки подключения можно изменить позже.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Расширение файла</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Добро пожаловать в Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>февраль</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Объединять файлы при привязке папки</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Не удалось завершить резервное копирование. Проверьте папку назначения и повторите попытку.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>С:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Файлы с этими расширениями не синхронизируются.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Введите адрес сервера и данные учётной записи.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Эта папка пересекается с папкой, которая уже синхронизируется.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Отмена установки</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Отказано в доступе</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Версия не поддерживается</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Оставшейся квоты на сервере недостаточно для этой папки.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>суббота</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Порт должен быть числом от 1 до 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Дважды щёлкните, чтобы изменить расширение</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Не удалось установить [ProductName]</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Мастер готов к восстановлению [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Скачано</translation>
    </message>
    <message>
        <source>July</source>
        <translation>июль</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Всегда использовать файл с сервера</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Проверка пароля...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Позволяет выбрать, какие компоненты [ProductName] будут установлены.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Проверить подключение</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Не удалось загрузить список папок из-за ошибки сети.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Нет подключения</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Возобновить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Пропу&amp;стить</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Дважды щёлкните значок, чтобы открыть Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Создать папку Driftwell в моей домашней папке</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Открыть папку Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>вторник</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>Запустить [ProductName] &amp;сейчас</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Повторить синхронизацию</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Эта версия [ProductName] уже установлена.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>август</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение установлено.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Прокси-сервер требует пароль</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Изменить установленные компоненты</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Если продолжить, впоследствии может потребоваться перезагрузить компьютер.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Найти серверы в этой сети</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Файлы в этой папке будут объединены с файлами на сервере. Ничего не удаляется.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Случайно изменили файл? Восстановите более раннюю версию с сервера.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Запуск Driftwell...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>декабрь</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Номер порта должен быть в диапазоне от 1 до 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Точка монтирования недоступна</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Всё готово</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Изменения не сохранены. Сохранить их сейчас?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell поддерживает синхронизацию файлов на этом компьютере и на вашем сервере.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Объединить файлы в этой папке с файлами на сервере?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Вы действительно хотите удалить эту задачу синхронизации? Уже синхронизированные файлы останутся на этом компьютере.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Завершить</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Несинхронизируемые типы файлов</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Папка синхронизации на этом компьютере</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Расширения начинаются с точки, например .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Мастер готов к удалению [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Изменения сохранены.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Щёлкните значок Driftwell в строке меню, чтобы увидеть, что сейчас синхронизируется.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Несинхронизируемые имена файлов:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Настроить прокси вручную</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Служба ретрансляции отключена</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Подключение нестабильно. Driftwell продолжает попытки.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Нажмите «Удалить», чтобы удалить [ProductName] с этого компьютера.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Возобновить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}Установка [ProductName] завершена</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Заблокировано другой программой</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Выберите папку на сервере и папку на этом компьютере для синхронизации.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Чтобы повторить попытку, запустите программу установки позже. Нажмите «Завершить», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Подключение к серверу</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Максимальное число синхронизируемых общих папок: %1.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Далее &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Показывать значок на несинхронизируемых файлах</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие %1 стр.</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Подождите, пока мастер установит [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Выйти из Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>На этом компьютере недостаточно свободного места.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Изменений нет.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>среда</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создано</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Для этого элемента нельзя создать ссылку для общего доступа.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Введите имя пользователя для прокси-сервера.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Последние 30 дней</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Мастер обслуживания позволяет восстановить или удалить [ProductName] на этом компьютере.\nНажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Сохранить оба файла и переименовать более старый</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Я &amp;принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>October</source>
        <translation>октябрь</translation>
    </message>
    <message>
        <source>May</source>
        <translation>май</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Предыдущие версии</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>Программа %1 уже запущена.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Нажмите «Установить», чтобы начать. Чтобы проверить или изменить настройки установки, нажмите «Назад».</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Файлы размером более %1 МБ не синхронизируются.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Установка [ProductName] прервана</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Синие стрелки означают, что файл синхронизируется.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Привязать другой сервер</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Ваша папка Driftwell теперь синхронизирована с сервером.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Очередь передачи</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Выберите тип настройки</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Не удалось запустить Driftwell. Перезагрузите компьютер и повторите попытку.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Исправление отсутствующих или повреждённых файлов, ярлыков и записей реестра [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>с %1 по %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] будет синхронизировать выбранные папки с вашим сервером.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>Установка [ProductName] успешно завершена.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>У вас нет прав доступа к этой общей папке.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Режим синхронизации:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Эта папка относится к другому серверу.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Сейчас этот файл нельзя скачать.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Шаблоны без подстановочных знаков должны совпадать с полным именем файла.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Исключённые имена файлов</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Уже установлена более новая версия [ProductName].</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Ваша квота хранилища на сервере исчерпана. Освободите место или запросите увеличение квоты.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Автоматически закрыть программы и затем перезапустить их</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Не удалось найти локальную папку синхронизации. Возможно, она была перемещена или удалена.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Мастер копирует файлы и обновляет систему.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Сохранить оба файла и добавить имя компьютера к копии с этого компьютера</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>На этом компьютере недостаточно свободного места. Освободите место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Файлы обновлены</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Журнал скачиваний</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Ваша квота хранилища на сервере исчерпана.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Нет папок, которые можно синхронизировать.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Обнаружен конфликт. Обе версии сохранены.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Всё готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Новый язык будет применён после перезапуска Driftwell.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Папка уже используется</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Обновление Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Лицензионное соглашение</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>На сервере</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 является точкой монтирования и не может использоваться как папка синхронизации.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Некоторые файлы, которые нужно обновить, используются.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Нет событий для отображения.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Изменения в этой папке на этом компьютере не отправляются на сервер.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Журнал синхронизации</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>У вас есть доступ к этой общей папке только для чтения.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Использовать монохромный значок в строке меню</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Сертификат сервера изменился. Доверять новому сертификату?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Введите код подтверждения из приложения для аутентификации.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>У вас нет доступа к этой папке.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Новая задача синхронизации</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Используйте * для обозначения любых символов, например ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Сохранить файл, изменённый последним</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Эта папка уже синхронизируется с другой общей папкой.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Синхронизация с вашим собственным сервером</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Поиск в этой сети</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Ваши файлы — на каждом вашем компьютере.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Папка на сервере недоступна.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Настройка завершена. Driftwell синхронизирует ваши файлы.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Всё готово к восстановлению [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Чтобы установить [ProductName] позже, снова запустите программу установки.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Папка может относиться только к одной задаче синхронизации.</translation>
    </message>
</context>
</TS>

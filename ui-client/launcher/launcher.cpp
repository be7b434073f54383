#include "launcher.h"

#include <climits>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFont>
#include <QIcon>

#include "drift-service.h"
#include "log.h"
#include "mac-service.h"
#include "notify_adapter.h"
#include "strtable.h"

namespace {

const char kComponent[] = "launcher_debug";

QString ToQString(const ustring& text)
{
    return QString::fromUtf8(text.c_str_utf8());
}

}  // namespace

void HandlerThread::run()
{
    exec();
}

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    QFont font(QStringLiteral("Arial"));
    const ustring icon_path =
        Service::GetRootDriftwellResourceInstallPath() + "/images/ico_72_driftwell.png";
    setWindowTitle(StrTable::LoadStr(StrTable::kIdAppName));
    // A missing icon file just leaves the window without an icon.
    setWindowIcon(QIcon(ToQString(icon_path)));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kIdPreparing));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    // The later call wins: window-modal.
    setWindowModality(Qt::WindowModal);
    setStyleSheet(
        QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } "));
}

void ProcessingProgressDialog::reject()
{
    // Escape ends here. Hiding the only window would end the event loop (and
    // with it the launcher) half-way through an extraction.
}

void ProcessingProgressDialog::closeEvent(QCloseEvent* event)
{
    // Not QProgressDialog's: it would emit canceled(), which hides the dialog.
    event->ignore();
}

Worker::Worker() : QObject(nullptr), m_thread(nullptr), m_service(nullptr)
{
    m_service = new MacService();
    m_thread = new HandlerThread();
    // Before the thread starts, so queued calls to the worker run in it.
    moveToThread(m_thread);
}

Worker::~Worker()
{
    // Destroying a running QThread aborts the process; a flow still running
    // is let finish (quit only takes effect once HandleServicce returns).
    QuitThread();
    JoinThread();
    delete m_thread;
    delete m_service;
}

void Worker::StartThread()
{
    m_thread->start(QThread::InheritPriority);
}

void Worker::QuitThread()
{
    m_thread->quit();
}

void Worker::JoinThread()
{
    m_thread->wait(ULONG_MAX);
}

void Worker::HandleServicce()
{
    Service& s = *m_service;
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): running\n", __LINE__);
    // The decision below copes with missing or partial records on its own.
    s.PreUpgrade();
    if (!s.IsNeedUpgrade()) {
        Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): no need to upgrade\n",
                       __LINE__);
    } else {
        emit sigShowMsg();
        if (s.HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(StrTable::kIdPreparationDone));
        } else {
            // Not fatal: the old copy is back where there was one, and the
            // client is started all the same. The dialog keeps its last state.
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] launcher(%d): Failed to upgrade package\n", __LINE__);
        }
    }
    s.RemoveAgedFolders();
    s.PostUpgrade();
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): done\n", __LINE__);
    emit sigServiceDone();
}

Launcher::Launcher() : QObject(nullptr), m_worker(nullptr), m_dialog(nullptr), m_done(false)
{
    m_worker = new Worker();
    connect(this, SIGNAL(sigStart()), m_worker, SLOT(HandleServicce()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigUpdateProgress(int,int)), this, SLOT(UpdateProgress(int,int)),
            Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)),
            Qt::AutoConnection);
    // The first call makes the bridge, here in the user interface thread.
    Notify_Adapter* bridge = Notify_Adapter::GetInstance();
    connect(bridge, SIGNAL(sigUpdateProgress(int,int)), this, SLOT(UpdateProgress(int,int)),
            Qt::AutoConnection);
    connect(bridge, SIGNAL(sigUpdateDialogText(QString)), this, SLOT(SetLabelText(QString)),
            Qt::AutoConnection);
}

Launcher::~Launcher()
{
    delete m_worker;
    delete m_dialog;
}

void Launcher::Run()
{
    m_worker->StartThread();
}

void Launcher::Start()
{
    emit sigStart();
}

void Launcher::LaunchDone()
{
    if (m_dialog != nullptr) {
        m_dialog->setValue(100);
        m_dialog->hide();
    }
    // HandleServicce has returned already, so the join is immediate.
    m_worker->QuitThread();
    m_worker->JoinThread();
    m_done = true;
    QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps)
{
    if (total <= 0 || m_dialog == nullptr)
        return;
    // 64-bit so that a huge step count cannot overflow; truncates toward zero.
    const int value = static_cast<int>(static_cast<qint64>(steps) * 100 / total);
    // Logged once per shown value, not per entry: a large package would
    // otherwise flood and rotate the log. The bar ignores values out of range.
    if (value == m_dialog->value() || value < m_dialog->minimum() || value > m_dialog->maximum())
        return;
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): progress %d\n", __LINE__,
                   value);
    m_dialog->setValue(value);
}

void Launcher::SetLabelText(QString text)
{
    if (m_dialog == nullptr)
        return;
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): label '%s'\n", __LINE__,
                   text.toUtf8().constData());
    m_dialog->setLabelText(text);
}

void Launcher::ShowMsgBox()
{
    // Made here rather than up front: QProgressDialog arms a timer that would
    // show it after a slow run with nothing to install, and making it costs a
    // large share of start-up.
    if (m_dialog == nullptr) {
        m_dialog = new ProcessingProgressDialog();
        m_dialog->setCancelButton(nullptr);
        // Reaching 100 neither resets nor hides the dialog.
        m_dialog->setAutoReset(false);
    }
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): show progress dialog\n",
                   __LINE__);
    m_dialog->show();
}

#include "launcher.h"

#include <QCoreApplication>

#include "log.h"
#include "notify_adapter.h"
#include "processing_progress_dialog.h"
#include "worker.h"

namespace {

const char kComponent[] = "launcher_debug";

}  // namespace

Launcher::Launcher() : QObject(nullptr), m_worker(nullptr), m_dialog(nullptr), m_done(false)
{
    m_worker = new Worker();
    connect(this, SIGNAL(sigStart()), m_worker, SLOT(HandleServicce()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()), Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)),
            Qt::AutoConnection);
    connect(m_worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)),
            Qt::AutoConnection);
    // The first call makes the bridge, here in the user interface thread.
    Notify_Adapter* bridge = Notify_Adapter::GetInstance();
    connect(bridge, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)),
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
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): progress %d\n", __LINE__, value);
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
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): show progress dialog\n", __LINE__);
    m_dialog->show();
}

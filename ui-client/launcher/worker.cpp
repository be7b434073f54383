#include "worker.h"

#include <climits>

#include "drift-service.h"
#include "log.h"
#include "mac-service.h"
#include "strtable.h"

namespace {

// The worker is part of the launcher: its messages name the source "launcher".
const char kComponent[] = "launcher_debug";

}  // namespace

void HandlerThread::run()
{
    exec();
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
        Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): no need to upgrade\n", __LINE__);
    } else {
        emit sigShowMsg();
        if (s.HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(StrTable::kIdPreparationDone));
        } else {
            // Not fatal: the old copy is back where there was one, and the
            // client is started all the same. The dialog keeps its last state.
            Logger::LogMsg(Logger::LOG_ERROR, kComponent, "[ERROR] launcher(%d): Failed to upgrade package\n",
                           __LINE__);
        }
    }
    s.RemoveAgedFolders();
    s.PostUpgrade();
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] launcher(%d): done\n", __LINE__);
    emit sigServiceDone();
}

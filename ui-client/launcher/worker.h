// Worker: the installation flow, in a thread of its own.
//
// The Worker lives in its HandlerThread and runs the flow through the Service
// interface, one step after the other. It reaches the user interface only
// through its signals, which cross to the Launcher as queued calls in emission
// order.
#ifndef DW_UI_CLIENT_LAUNCHER_WORKER_H
#define DW_UI_CLIENT_LAUNCHER_WORKER_H

#include <QObject>
#include <QString>
#include <QThread>

class Service;

// Runs nothing but the thread's event loop, so queued calls reach the Worker.
class HandlerThread : public QThread {
    Q_OBJECT
protected:
    void run() override;
};

class Worker : public QObject {
    Q_OBJECT
public:
    // Creates the service, then the thread, and moves itself into that thread;
    // the thread is not started.
    Worker();
    // Quits the thread and waits for it, so a flow still running ends first.
    ~Worker() override;

    void StartThread();
    void QuitThread();
    void JoinThread();

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int, int);
    void sigSetLabelText(QString);

private slots:
    // The installation flow, in the worker thread. A failed upgrade is logged
    // and the flow goes on to start the client all the same.
    void HandleServicce();

private:
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    HandlerThread* m_thread;
    Service* m_service;
};

#endif

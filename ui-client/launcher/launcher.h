// Launcher: the launcher's user interface and its worker thread.
//
// The Launcher lives in the user interface thread and owns a Worker, which
// lives in a HandlerThread of its own and runs the installation flow through
// the Service interface. All traffic between the two goes through automatic
// (here: queued) connections, in emission order. The progress dialog exists
// only on the upgrade path: it is made when the worker asks for it.
#ifndef LAUNCHER_H
#define LAUNCHER_H

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>

class Service;

// Runs nothing but the thread's event loop, so queued calls reach the Worker.
class HandlerThread : public QThread {
    Q_OBJECT
protected:
    void run() override;
};

// The modal progress dialog: a percentage (0 to 100) and one line of text.
// Everything is set in the constructor; it is not shown by it. The user cannot
// dismiss it (Escape, the close button, a window manager's close): only the
// launcher hides it once the work is done.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT
public:
    ProcessingProgressDialog();

public slots:
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
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

class Launcher : public QObject {
    Q_OBJECT
public:
    // Builds the worker and connects it and the progress bridge to the slots
    // below. The dialog is not made here.
    Launcher();
    // Waits for a flow that is still running (see ~Worker).
    ~Launcher() override;

    // Starts the worker's thread (priority inherited).
    void Run();
    // Emits sigStart(): the worker begins its flow.
    void Start();
    // True once LaunchDone has run: the only proper end of the event loop.
    bool IsDone() const { return m_done; }

signals:
    void sigStart();

private slots:
    // Value 100, hide the dialog, stop and join the worker thread, quit the
    // application's event loop.
    void LaunchDone();
    // steps * 100 / total, truncated. A total that is not positive is ignored.
    void UpdateProgress(int total, int steps);
    void SetLabelText(QString text);
    // Makes the dialog on first use and shows it.
    void ShowMsgBox();

private:
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    Worker* m_worker;
    // Null until the worker asks for the dialog; all slots tolerate that.
    ProcessingProgressDialog* m_dialog;
    bool m_done;
};

#endif

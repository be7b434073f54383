// Launcher: the launcher's user interface side.
//
// The Launcher lives in the user interface thread and owns a Worker (worker.h),
// which lives in a HandlerThread of its own and runs the installation flow
// through the Service interface. All traffic between the two goes through
// automatic (here: queued) connections, in emission order. The progress dialog
// (processing_progress_dialog.h) exists only on the upgrade path: it is made
// when the worker asks for it.
#ifndef DW_UI_CLIENT_LAUNCHER_LAUNCHER_H
#define DW_UI_CLIENT_LAUNCHER_LAUNCHER_H

#include <QObject>
#include <QString>

class ProcessingProgressDialog;
class Worker;

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

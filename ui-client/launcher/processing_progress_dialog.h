// ProcessingProgressDialog: what the Launcher shows while an upgrade runs.
#ifndef DW_UI_CLIENT_LAUNCHER_PROCESSING_PROGRESS_DIALOG_H
#define DW_UI_CLIENT_LAUNCHER_PROCESSING_PROGRESS_DIALOG_H

#include <QProgressDialog>

class QCloseEvent;

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

#endif

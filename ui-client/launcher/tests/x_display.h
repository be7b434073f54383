// A private X server (Xvfb) and what a user or a window manager does to the
// launcher's windows on it. Kept apart from the tests: Xlib's macros (None,
// Status, Bool) clash with other headers.
#ifndef DW_UI_CLIENT_LAUNCHER_TESTS_X_DISPLAY_H
#define DW_UI_CLIENT_LAUNCHER_TESTS_X_DISPLAY_H

#include <QProcess>
#include <QString>

struct _XDisplay;  // Xlib's Display

class XDisplay {
public:
    ~XDisplay();

    // Starts the server on a display number of its choosing and connects.
    bool start();
    QString name() const { return name_; }

    // The viewable window with that title (as xwininfo finds it), 0 if there
    // is none.
    unsigned long viewableWindow(const QByteArray& title);
    // What a user does to be rid of a dialog: Escape pressed and released,
    // then a window manager's close request (WM_DELETE_WINDOW).
    bool tryToDismiss(unsigned long window);

private:
    QProcess server_;  // not copyable, so neither is this
    QString name_;
    _XDisplay* display_ = nullptr;
};

#endif

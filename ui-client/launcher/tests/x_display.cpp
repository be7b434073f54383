#include "x_display.h"

#include <QRegularExpression>

#include "launcher_testkit.h"

// Last: Xlib's macros would rewrite names in the Qt headers.
#include <X11/Xlib.h>
#include <X11/keysym.h>

XDisplay::~XDisplay()
{
    if (display_ != nullptr)
        XCloseDisplay(display_);
    server_.terminate();
    server_.waitForFinished(kWaitTimeoutMs);
}

bool XDisplay::start()
{
    // -displayfd names the display once the server accepts connections, so
    // parallel tests cannot race for one.
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
    while (!server_.canReadLine() && server_.waitForReadyRead(kWaitTimeoutMs)) {
    }
    bool number = false;
    const int n = QString::fromLatin1(server_.readLine()).trimmed().toInt(&number);
    name_ = QString(":%1").arg(n);
    // Xlib's default handler ends the process on a window that is gone already.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    display_ = number ? XOpenDisplay(name_.toLatin1().constData()) : nullptr;
    return display_ != nullptr;
}

unsigned long XDisplay::viewableWindow(const QByteArray& title)
{
    QProcess info;
    info.start("xwininfo", {"-display", name_, "-name", QString::fromUtf8(title)});
    const QString out = info.waitForFinished(kWaitTimeoutMs) ? QString::fromUtf8(info.readAllStandardOutput())
                                                             : "";
    if (!out.contains("Map State: IsViewable"))
        return 0;
    return QRegularExpression("Window id: (0x[0-9a-f]+)").match(out).captured(1).toULong(nullptr, 16);
}

bool XDisplay::tryToDismiss(unsigned long window)
{
    XEvent event{};
    XKeyEvent& key = event.xkey;
    key.window = window;
    key.root = DefaultRootWindow(display_);
    key.same_screen = True;
    key.keycode = XKeysymToKeycode(display_, XK_Escape);
    key.type = KeyPress;
    bool sent = XSendEvent(display_, window, True, KeyPressMask, &event) != 0;
    key.type = KeyRelease;
    sent = XSendEvent(display_, window, True, KeyReleaseMask, &event) != 0 && sent;

    event = XEvent{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, "WM_DELETE_WINDOW", False));
    sent = XSendEvent(display_, window, False, NoEventMask, &event) != 0 && sent;
    XSync(display_, False);
    return sent;
}

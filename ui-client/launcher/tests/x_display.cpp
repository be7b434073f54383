#include "x_display.h"

#include <cstring>

#include "launcher_testkit.h"

// Last: Xlib's macros would rewrite names in the Qt headers.
#include <X11/Xlib.h>
#include <X11/keysym.h>

namespace {

Display* Dpy(void* display)
{
    return static_cast<Display*>(display);
}

bool HasTitle(Display* dpy, Window window, const QByteArray& title)
{
    const Atom name = XInternAtom(dpy, "_NET_WM_NAME", False);
    Atom type = 0;
    int format = 0;
    unsigned long items = 0, after = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(dpy, window, name, 0, 1024, False, AnyPropertyType, &type, &format, &items, &after,
                           &data) != Success)
        return false;
    const bool same = data != nullptr && format == 8 && items == static_cast<unsigned long>(title.size()) &&
                      std::memcmp(data, title.constData(), items) == 0;
    if (data != nullptr)
        XFree(data);
    return same;
}

// Xlib's default handler ends the process on a window that is gone already.
int IgnoreError(Display*, XErrorEvent*)
{
    return 0;
}

}  // namespace

XDisplay::~XDisplay()
{
    if (display_ != nullptr)
        XCloseDisplay(Dpy(display_));
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
    XSetErrorHandler(IgnoreError);
    display_ = number ? XOpenDisplay(name_.toLatin1().constData()) : nullptr;
    return display_ != nullptr;
}

unsigned long XDisplay::viewableWindow(const QByteArray& title)
{
    Display* dpy = Dpy(display_);
    Window root = 0, parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    unsigned long found = 0;
    if (XQueryTree(dpy, DefaultRootWindow(dpy), &root, &parent, &children, &count) == 0)
        return 0;
    for (unsigned int i = 0; i < count && found == 0; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(dpy, children[i], &attributes) != 0 && attributes.map_state == IsViewable &&
            HasTitle(dpy, children[i], title))
            found = children[i];
    }
    if (children != nullptr)
        XFree(children);
    return found;
}

bool XDisplay::tryToDismiss(unsigned long window)
{
    Display* dpy = Dpy(display_);
    XEvent event;
    std::memset(&event, 0, sizeof event);
    XKeyEvent& key = event.xkey;
    key.display = dpy;
    key.window = window;
    key.root = DefaultRootWindow(dpy);
    key.time = CurrentTime;
    key.same_screen = True;
    key.keycode = XKeysymToKeycode(dpy, XK_Escape);
    key.type = KeyPress;
    bool sent = XSendEvent(dpy, window, True, KeyPressMask, &event) != 0;
    key.type = KeyRelease;
    sent = XSendEvent(dpy, window, True, KeyReleaseMask, &event) != 0 && sent;

    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(dpy, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(dpy, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    sent = XSendEvent(dpy, window, False, NoEventMask, &event) != 0 && sent;
    XSync(dpy, False);
    return sent;
}

// Notify_Adapter: the bridge through which code in the worker thread reports
// progress and dialog text. It only emits; receivers connect with automatic
// connections, so reports reach the UI thread as queued calls in order.
#ifndef DW_UI_CLIENT_NOTIFY_NOTIFY_ADAPTER_H
#define DW_UI_CLIENT_NOTIFY_NOTIFY_ADAPTER_H

#include <QObject>
#include <QString>

class Notify_Adapter : public QObject {
    Q_OBJECT
public:
    static Notify_Adapter* GetInstance();
    // total is forwarded unchanged; the receiver ignores a total that is not positive.
    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() : QObject(nullptr) {}
    ~Notify_Adapter() override = default;
};

#endif

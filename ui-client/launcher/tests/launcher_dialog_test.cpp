// The Launcher in-process, with a real event loop: the dialog exists only
// once the worker asks for it, and reports from another thread reach it as
// percentages.
#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>

#include "launcher.h"
#include "notify_adapter.h"
#include "strtable.h"

namespace {

QProgressDialog* TheDialog()
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* d = qobject_cast<QProgressDialog*>(w))
            return d;
    }
    return nullptr;
}

// Reaching the dialog from a thread of its own, as the extractor does.
void FromWorker(const std::function<void(Notify_Adapter*)>& report)
{
    std::thread([&] { report(Notify_Adapter::GetInstance()); }).join();
    QCoreApplication::processEvents();
}

TEST(LauncherDialog, MadeOnDemandThenFollowsReportsAndCloses)
{
    StrTable::InitStrTable();
    Launcher launcher;
    FromWorker([](Notify_Adapter* n) { n->UpdateProgress(7, 3); });
    EXPECT_EQ(nullptr, TheDialog());  // nothing to update, nothing made

    ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "ShowMsgBox"));
    QProgressDialog* dialog = TheDialog();
    ASSERT_NE(nullptr, dialog);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(StrTable::LoadStr(StrTable::kIdPreparing), dialog->labelText());
    EXPECT_EQ(Qt::WindowModal, dialog->windowModality());
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_EQ(100, dialog->maximum());

    FromWorker([](Notify_Adapter* n) { n->UpdateProgress(7, 3); });
    EXPECT_EQ(42, dialog->value());
    // A total that is not positive is ignored rather than divided by.
    FromWorker([](Notify_Adapter* n) {
        n->UpdateProgress(0, 5);
        n->UpdateProgress(-2, -1);
    });
    EXPECT_EQ(42, dialog->value());
    // Fixed, not merely resized: a label wider than 400 pixels does not widen it.
    const QString wide = QString("a label far wider than the dialog ").repeated(8);
    FromWorker([&](Notify_Adapter* n) { n->UpdateDialogText(wide); });
    EXPECT_EQ(wide, dialog->labelText());
    EXPECT_EQ(400, dialog->width());

    launcher.Run();
    ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "LaunchDone"));
    EXPECT_EQ(100, dialog->value());
    EXPECT_FALSE(dialog->isVisible());

    // Deleted with its worker thread still running (an event loop that ended
    // early): the thread is quit and joined, not destroyed running (abort).
    Launcher early;
    early.Run();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

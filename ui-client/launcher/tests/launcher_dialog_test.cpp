// The Launcher in-process, with a real event loop: the dialog exists only
// once the worker asks for it, and reports from another thread reach it as
// percentages.
#include <gtest/gtest.h>

#include <thread>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>

#include "launcher.h"
#include "notify_adapter.h"
#include "strtable.h"

namespace {

QList<QProgressDialog*> Dialogs()
{
    QList<QProgressDialog*> found;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* d = qobject_cast<QProgressDialog*>(w))
            found.append(d);
    }
    return found;
}

// Reported from a thread of its own, as the extractor does.
void ReportFromWorker(int total, int current)
{
    std::thread([=] { Notify_Adapter::GetInstance()->UpdateProgress(total, current); }).join();
    QCoreApplication::processEvents();
}

struct ProgressRow {
    const char* name;
    int total;
    int steps;
    int value;  // what the dialog shows afterwards
};

const ProgressRow kProgress[] = {
    {"three_of_seven", 7, 3, 42},   {"one_of_four", 4, 1, 25},
    {"zero_total_ignored", 0, 5, 25}, {"negative_total_ignored", -2, 1, 25},
    {"all_of_hundred", 100, 100, 100}, {"none_of_three", 3, 0, 0},
};

TEST(LauncherDialog, MadeOnDemandThenFollowsReportsAndCloses)
{
    StrTable::InitStrTable();
    Launcher launcher;
    ReportFromWorker(7, 3);  // no dialog yet: nothing to update, nothing made
    EXPECT_TRUE(Dialogs().isEmpty());

    ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "ShowMsgBox"));
    ASSERT_EQ(1, Dialogs().size());
    QProgressDialog* dialog = Dialogs().first();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(StrTable::LoadStr(453), dialog->windowTitle());
    EXPECT_EQ(StrTable::LoadStr(54), dialog->labelText());
    EXPECT_EQ(400, dialog->width());
    EXPECT_EQ(Qt::WindowModal, dialog->windowModality());
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_EQ(0, dialog->minimum());
    EXPECT_EQ(100, dialog->maximum());

    for (const ProgressRow& row : kProgress) {
        ReportFromWorker(row.total, row.steps);
        EXPECT_EQ(row.value, dialog->value()) << row.name;
        EXPECT_TRUE(dialog->isVisible()) << row.name;
    }
    const QString wide = QString("a label far wider than the dialog ").repeated(8);
    std::thread([&] { Notify_Adapter::GetInstance()->UpdateDialogText(wide); }).join();
    QCoreApplication::processEvents();
    EXPECT_EQ(wide, dialog->labelText());
    EXPECT_EQ(400, dialog->width());

    launcher.Run();
    ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "LaunchDone"));
    EXPECT_EQ(100, dialog->value());
    EXPECT_FALSE(dialog->isVisible());
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

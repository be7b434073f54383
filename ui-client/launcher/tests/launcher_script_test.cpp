// The progress dialog in languages whose scripts need fonts of their own, on
// a real X server: every character of its label is drawn by the font the
// dialog uses (its fall-backs included, as Qt renders them), the label fits
// the dialog, and a screenshot of the window shows dark text on a light
// background. The screenshot per language is kept for a person to look at.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QProgressDialog>
#include <QScreen>
#include <QTest>
#include <QTranslator>

#include "launcher.h"
#include "strtable.h"
#include "x_display.h"

namespace {

const char* const kCodes[] = {"deu", "rus", "jpn", "krn", "cht", "chs"};

class DialogScript : public testing::TestWithParam<const char*> {};

TEST_P(DialogScript, LabelIsCoveredByTheFontAndFitsTheDialog)
{
    const QString code = GetParam();
    QTranslator translator;
    ASSERT_TRUE(translator.load(":/" + code + ".qm"));
    QCoreApplication::installTranslator(&translator);
    {
        // Made and shown the way the worker asks for it.
        Launcher launcher;
        ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "ShowMsgBox"));
        auto* shown = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, shown);
        QProgressDialog& dialog = *shown;
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog, 10000));
        EXPECT_EQ("Talvane Driftwell", dialog.windowTitle());
        auto* label = dialog.findChild<QLabel*>();
        ASSERT_NE(nullptr, label);

        for (int id : {StrTable::kIdPreparing, StrTable::kIdPreparationDone}) {
            const QString text = StrTable::LoadStr(id);
            SCOPED_TRACE(qPrintable(text));
            dialog.setLabelText(text);
            QCoreApplication::processEvents();
            const QFontMetrics metrics(label->font());
            for (uint c : text.toUcs4())
                EXPECT_TRUE(metrics.inFontUcs4(c)) << "U+" << std::hex << c << " has no glyph";
            EXPECT_LE(metrics.horizontalAdvance(text), label->contentsRect().width());
            EXPECT_GE(label->x(), 0);
            EXPECT_LE(label->geometry().right(), dialog.width());
        }

        const QString dir = QString(DW_ARTIFACT_DIR);
        ASSERT_TRUE(QDir().mkpath(dir));
        const QImage shot = dialog.screen()->grabWindow(dialog.winId()).toImage();
        EXPECT_EQ(400, shot.width());
        EXPECT_TRUE(shot.save(dir + "/progress_dialog_" + code + ".png"));
        int dark = 0;
        for (int y = 0; y < shot.height(); ++y) {
            for (int x = 0; x < shot.width(); ++x)
                dark += qGray(shot.pixel(x, y)) < 96;
        }
        EXPECT_GT(dark, 100) << "no text";
        EXPECT_GT(shot.width() * shot.height() - dark, 100) << "no background";
    }
    QCoreApplication::removeTranslator(&translator);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogScript, testing::ValuesIn(kCodes),
                         [](const testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

}  // namespace

int main(int argc, char** argv)
{
    XDisplay x;
    if (!x.start()) {
        fprintf(stderr, "Xvfb did not come up\n");
        return 1;
    }
    qputenv("DISPLAY", x.name().toLocal8Bit());
    qunsetenv("QT_QPA_PLATFORM");
    // No session bus: libdbus would fork dbus-launch from a Qt thread.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/driftwell-test-bus");
    int result = 0;
    {
        QApplication app(argc, argv);
        qInitResources_texts();
        StrTable::InitStrTable();
        testing::InitGoogleTest(&argc, argv);
        result = RUN_ALL_TESTS();
    }
    return result;
}

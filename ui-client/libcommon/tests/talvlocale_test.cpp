#include "TalvLocale.h"
#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

#include <cstdio>

namespace {

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

const char kResultTag[] = "language=";

void printDefaultLanguage()
{
    std::printf("%s%s\n", kResultTag, qPrintable(TalvLocale::getDefaultLanguage()));
    std::fflush(stdout);
}

// Not run directly: QLocale::system() is read once per process, so each locale
// gets a child process of this program that runs only one of these.
TEST(TalvLocaleProbe, DISABLED_PrintDefaultLanguage)
{
    printDefaultLanguage();
}

TEST(TalvLocaleProbe, DISABLED_PrintDefaultLanguageWithoutCatalogues)
{
    qCleanupResources_texts();
    printDefaultLanguage();
}

struct Probe {
    QString language;  // empty when the child failed
    QString debugOutput;
};

// Runs a probe with only the given locale variables set.
Probe runProbe(const char* probe, const QStringList& localeVariables)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LC_CTYPE", "LANG"})
        env.remove(QString::fromLatin1(name));
    for (const QString& assignment : localeVariables)
        env.insert(assignment.section('=', 0, 0), assignment.section('=', 1));
    env.insert(QStringLiteral("QT_MESSAGE_PATTERN"), QStringLiteral("%{type}|%{file}|%{function}|%{message}"));

    QProcess child;
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_also_run_disabled_tests"),
                 QStringLiteral("--gtest_filter=TalvLocaleProbe.%1").arg(QLatin1String(probe))});
    Probe result;
    if (!child.waitForFinished(120000) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return result;
    for (const QString& line : QString::fromLocal8Bit(child.readAllStandardOutput()).split('\n')) {
        if (line.startsWith(QLatin1String(kResultTag)))
            result.language = line.mid(int(sizeof(kResultTag)) - 1);
    }
    result.debugOutput = QString::fromLocal8Bit(child.readAllStandardError());
    return result;
}

TEST(TalvLocaleTest, DefaultLanguageFollowsSystemLocale)
{
    const struct {
        const char* locale;
        const char* code;
    } rows[] = {
        {"zh_TW", "cht"}, {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_CN", "chs"}, {"zh_SG", "chs"},
        {"zh", "chs"},    {"pt_PT", "ptg"}, {"pt_BR", "ptb"}, {"nb_NO", "nor"}, {"nn_NO", "nor"},
        {"no", "nor"},    {"en_GB", "enu"}, {"en_US", "enu"}, {"fi_FI", "enu"}, {"C", "enu"},
        {"de_DE", "deu"}, {"de_AT.UTF-8", "deu"}, {"ja_JP", "jpn"}, {"ko_KR", "krn"}, {"fr_CA", "fra"},
        {"it_IT", "ita"}, {"es_MX", "esn"}, {"ru_RU", "rus"}, {"da_DK", "dan"}, {"sv_SE", "sve"},
        {"nl_BE", "nld"}, {"pl_PL", "plk"}, {"hu_HU", "hun"}, {"tr_TR", "trk"}, {"cs_CZ", "csy"},
    };
    for (const auto& row : rows) {
        const Probe probe = runProbe("DISABLED_PrintDefaultLanguage", {QStringLiteral("LC_ALL=") + row.locale});
        EXPECT_EQ(probe.language, row.code) << "LC_ALL=" << row.locale;
    }
    // LANG alone is enough when LC_ALL is unset.
    EXPECT_EQ(runProbe("DISABLED_PrintDefaultLanguage", {QStringLiteral("LANG=zh_TW.UTF-8")}).language, "cht");
}

TEST(TalvLocaleTest, DefaultLanguageWritesDebugLines)
{
    const Probe probe = runProbe("DISABLED_PrintDefaultLanguage", {QStringLiteral("LC_ALL=de_DE")});
    ASSERT_EQ(probe.language, "deu");
    const QStringList expected = {
        "qPrintable(qstrLocaleLower)=[de_de\n] ",
        "qPrintable(qstrLocaleLower)=[de_de] ",
        "qPrintable(qstrLangFileName)=[:/deu.qm] ",
        "qPrintable(qstrDef)=[deu\n] ",
    };
    int from = 0;
    for (const QString& text : expected) {
        const int at = probe.debugOutput.indexOf(text, from);
        ASSERT_GE(at, 0) << "missing in order: " << qPrintable(text) << "\n" << qPrintable(probe.debugOutput);
        // Each line carries its logger context and starts with the source path and line.
        const int lineStart = probe.debugOutput.lastIndexOf("debug|", at);
        const QString head = probe.debugOutput.mid(lineStart, at - lineStart);
        EXPECT_TRUE(head.contains(QRegularExpression(
            "^debug\\|[^|]*TalvLocale\\.cpp\\|[^|]*TalvLocale::\\w+[^|]*\\|\\.\\./libcommon/TalvLocale:\\d+ $")))
            << qPrintable(head);
        from = at + text.size();
    }
}

TEST(TalvLocaleTest, DefaultLanguageFallsBackWithoutCatalogue)
{
    const Probe probe = runProbe("DISABLED_PrintDefaultLanguageWithoutCatalogues", {QStringLiteral("LC_ALL=de_DE")});
    EXPECT_EQ(probe.language, "enu");
    EXPECT_FALSE(probe.debugOutput.contains("qstrLangFileName"));
}

TEST(TalvLocaleTest, LanguageTable)
{
    const QStringList codes = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                               "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};
    EXPECT_EQ(TalvLocale::getSupportedLanguages(), codes);
    for (int id = 0; id < codes.size(); ++id) {
        EXPECT_EQ(TalvLocale::getLanguageAbbrByID(id), codes[id]);
        EXPECT_TRUE(TalvLocale::isLanguageInstalled(codes[id])) << qPrintable(codes[id]);
    }
    EXPECT_EQ(TalvLocale::getLanguageAbbrByID(17), "ptg");
    EXPECT_TRUE(TalvLocale::getLanguageAbbrByID(20).isEmpty());
    EXPECT_TRUE(TalvLocale::getLanguageAbbrByID(-1).isEmpty());
    EXPECT_EQ(TalvLocale::getStrLanguageFallSafe(), "enu");
    EXPECT_FALSE(TalvLocale::isLanguageInstalled(QString()));
    EXPECT_FALSE(TalvLocale::isLanguageInstalled("fin"));
    EXPECT_FALSE(TalvLocale::isLanguageInstalled("ENU"));
}

}  // namespace

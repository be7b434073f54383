#include "TalvLocale.h"
#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

#include <cstdio>
#include <string>

namespace {

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

const char kResultTag[] = "language=";

// Not run directly: QLocale::system() is read once per process, so each locale
// gets a child process of this program that runs only one of these.
TEST(TalvLocaleProbe, DISABLED_PrintDefaultLanguage)
{
    std::printf("%s%s\n", kResultTag, qPrintable(TalvLocale::getDefaultLanguage()));
}

TEST(TalvLocaleProbe, DISABLED_PrintDefaultLanguageWithoutCatalogues)
{
    qCleanupResources_texts();
    std::printf("%s%s\n", kResultTag, qPrintable(TalvLocale::getDefaultLanguage()));
}

// The language a probe prints with only LC_ALL set; empty when the child failed.
std::string DefaultLanguage(const char* probe, const QString& locale)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LC_CTYPE", "LANG"})
        env.remove(QString::fromLatin1(name));
    env.insert("LC_ALL", locale);

    QProcess child;
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(),
                {"--gtest_also_run_disabled_tests", QString("--gtest_filter=TalvLocaleProbe.") + probe});
    if (!child.waitForFinished(120000) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return std::string();
    for (const QString& line : QString::fromLocal8Bit(child.readAllStandardOutput()).split('\n')) {
        if (line.startsWith(kResultTag))
            return line.mid(int(sizeof(kResultTag)) - 1).toStdString();
    }
    return std::string();
}

TEST(TalvLocaleTest, DefaultLanguageFollowsSystemLocale)
{
    const struct {
        const char* locale;
        const char* code;
    } rows[] = {
        {"zh_TW", "cht"}, {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_CN", "chs"}, {"zh", "chs"},
        {"zh_SG", "chs"}, {"pt_PT", "ptg"}, {"pt_BR", "ptb"}, {"pt", "ptg"},    {"pt_PT.UTF-8@euro", "ptg"},
        {"nb_NO", "nor"}, {"nn_NO", "nor"}, {"no", "nor"},    {"en_GB", "enu"}, {"fi_FI", "enu"},
        {"C", "enu"},     {"de_DE", "deu"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(DefaultLanguage("DISABLED_PrintDefaultLanguage", row.locale), row.code) << row.locale;
}

TEST(TalvLocaleTest, DefaultLanguageFallsBackWithoutCatalogue)
{
    EXPECT_EQ(DefaultLanguage("DISABLED_PrintDefaultLanguageWithoutCatalogues", "de_DE"), "enu");
}

TEST(TalvLocaleTest, LanguageTable)
{
    const QStringList codes = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                               "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};
    EXPECT_EQ(TalvLocale::getSupportedLanguages(), codes);
    EXPECT_EQ(TalvLocale::getLanguageAbbrByID(17), "ptg");
    EXPECT_TRUE(TalvLocale::getLanguageAbbrByID(20).isEmpty());
    EXPECT_TRUE(TalvLocale::getLanguageAbbrByID(-1).isEmpty());
    EXPECT_FALSE(TalvLocale::isLanguageInstalled(QString()));
}

}  // namespace

// The user interface language follows the environment's locale: the catalogue
// chosen, and the dialog texts the launcher then shows.
#include <gtest/gtest.h>

#include "launcher_testkit.h"
#include "named_rows.h"

namespace {

struct LanguageRow : dwtest::Row {
    const char* variable;
    const char* locale;
    const char* code;
    const char* ready;
};

const LanguageRow kRows[] = {
    {"german", "LANG", "de_DE.UTF-8", "deu", "Driftwell ist bereit."},
    {"traditional_chinese", "LC_ALL", "zh_TW.UTF-8", "cht", "Driftwell 已準備就緒。"},
    {"finnish_falls_back", "LANG", "fi_FI.UTF-8", "enu", "Driftwell is ready."},
    {"c_locale", "LC_ALL", "C", "enu", "Driftwell is ready."},
    {"bare_portuguese_messages", "LC_MESSAGES", "pt", "ptg", "O Driftwell está pronto."},
};

class LauncherLanguage : public testing::TestWithParam<LanguageRow> {};

TEST_P(LauncherLanguage, DialogSpeaksTheLanguageOfTheEnvironment)
{
    const LanguageRow& row = GetParam();
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.setBuild(1, ClientPackage(1)));
    QProcessEnvironment env = b.environment();
    env.remove("LANG");
    env.insert(row.variable, row.locale);

    const RunResult r = b.run(env);
    ASSERT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    // The language selection traces its choice on standard error.
    EXPECT_TRUE(r.err.contains(QString("qPrintable(qstrDef)=[") + row.code + "\n]")) << qPrintable(r.err);
    const QString label = QString("label '") + QString::fromUtf8(row.ready) + "'";
    EXPECT_EQ(1, LinesWith(b.log(), label).size()) << qPrintable(b.log());
}

INSTANTIATE_TEST_SUITE_P(Locales, LauncherLanguage, testing::ValuesIn(kRows), dwtest::RowName());

}  // namespace

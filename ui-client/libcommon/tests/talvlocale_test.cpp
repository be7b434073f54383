#include "TalvLocale.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QtGlobal>

namespace {

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

// The language is read from the environment at every call (QLocale::system()
// only where no variable is set), so the rows can share this process.
QString DefaultLanguage(const char* locale)
{
    for (const char* name : {"LANGUAGE", "LC_MESSAGES", "LANG"})
        qunsetenv(name);
    qputenv("LC_ALL", locale);
    return TalvLocale::getDefaultLanguage();
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
        EXPECT_EQ(DefaultLanguage(row.locale), row.code) << row.locale;
    // Without its catalogue a known language falls back.
    qCleanupResources_texts();
    EXPECT_EQ(DefaultLanguage("de_DE"), "enu");
    qInitResources_texts();
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

#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>
#include <utility>

namespace {

const char kReady[] = "Driftwell is ready.";
const char kInitializing[] = "Driftwell is initializing...";

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

TEST(StrTable, EnglishWithoutTranslatorAndEmptyOutsideTheTable)
{
    EXPECT_EQ(StrTable::LoadStr(16), kReady);
    EXPECT_EQ(StrTable::LoadStr(54), kInitializing);
    EXPECT_EQ(StrTable::LoadStr(453), "Driftwell Backup");
    EXPECT_TRUE(StrTable::LoadStr(-1).isEmpty());
    EXPECT_TRUE(StrTable::LoadStr(600).isEmpty());
}

// The shape of the English table: every row a real text, the number of
// distinct and shared texts, and how many rows carry each kind of marker.
TEST(StrTable, EnglishTableHasItsShape)
{
    QMap<QString, int> uses;
    int args = 0, accelerators = 0, markup = 0, styles = 0;
    const QRegularExpression markupRe(QStringLiteral("\\[[A-Za-z_]+\\]"));
    for (int id = 0; id < 600; ++id) {
        const QString text = StrTable::LoadStr(id);
        ASSERT_FALSE(text.isEmpty()) << "id " << id;
        // A key stand-in is found under its own id; a key is lower case
        // (three are upper case), so "Friday" for friday is a real text.
        EXPECT_FALSE(StrTable::LookupStrID(text) == id && (text == text.toLower() || text == text.toUpper()))
            << "id " << id << " holds its key";
        ++uses[text];
        args += text.contains(QLatin1String("%1"));
        accelerators += QString(text).remove(QStringLiteral("&&")).contains('&');
        markup += text.contains(markupRe);
        styles += text.startsWith(QLatin1String("{\\"));
    }
    EXPECT_EQ(496, uses.size());
    EXPECT_EQ(72, std::count_if(uses.begin(), uses.end(), [](int n) { return n > 1; }));
    EXPECT_EQ(3, uses.value("Cancel"));
    EXPECT_EQ(28, args);
    EXPECT_EQ(20, accelerators);
    EXPECT_EQ(36, markup);
    EXPECT_EQ(7, styles);
}

TEST(StrTable, GermanCatalogueUnderContextGlobal)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/deu.qm")));
    const QString german = translator.translate("global", kReady);
    EXPECT_FALSE(german.isEmpty());
    EXPECT_NE(german, kReady);
    ScopedTranslator installed(&translator);
    EXPECT_EQ(StrTable::LoadStr(16), german);
}

// Answers only what LoadStr must ask for: context "global", the English text
// (never the key), no disambiguation, n = -1.
class EscapesTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override
    {
        if (qstrcmp(context, "global") == 0 && qstrcmp(sourceText, kReady) == 0 && !disambiguation && n == -1)
            return QStringLiteral("a\\nb\\tc\\N\\T\nd\\\\ne");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(StrTable, BackslashSequencesBecomeNewlineAndTab)
{
    EscapesTranslator translator;
    ScopedTranslator installed(&translator);
    // Upper-case sequences and real line breaks stay; of a doubled backslash
    // before n, the second one and the n become the newline.
    EXPECT_EQ(StrTable::LoadStr(16), "a\nb\tc\\N\\T\nd\\\ne");
}

TEST(StrTable, LookupStrIDIgnoresCaseButNotBlanks)
{
    const std::pair<const char*, int> rows[] = {
        {"app_name", 453},
        {"APP_NAME", 453},
        {"Desc_Dwel_Env_Preparing", 54},
        {"wizard_ssl_change_sync_folder_warning", 0},
        {"btn_settings", 599},
        {"no_such_key", -1},
        {"app_name ", -1},
        {"", -1},
    };
    for (const auto& [key, id] : rows)
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(key)), id) << "'" << key << "'";
}

}  // namespace

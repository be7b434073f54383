#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QResource>
#include <QTranslator>

#include <cstdlib>

namespace {

const char kReady[] = "Driftwell is ready.";
const char kInitializing[] = "Driftwell is initializing...";

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

// Installs a translator for the lifetime of the scope.
class ScopedTranslator {
public:
    explicit ScopedTranslator(QTranslator* t) : t_(t) { QCoreApplication::installTranslator(t_); }
    ~ScopedTranslator() { QCoreApplication::removeTranslator(t_); }

private:
    QTranslator* t_;
};

class StrTableTest : public ::testing::Test {
protected:
    void SetUp() override { StrTable::InitStrTable(); }
};

TEST(StrTableBeforeInit, GivesNothing)
{
    // A fresh process, so no other test has filled the table yet.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(StrTable::LoadStr(16).isEmpty() && StrTable::LookupStrID("app_name") == -1 ? 0 : 1),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(StrTableTest, EnglishWithoutTranslatorAndEmptyOutsideTheTable)
{
    EXPECT_EQ(StrTable::LoadStr(16), kReady);
    EXPECT_EQ(StrTable::LoadStr(54), kInitializing);
    EXPECT_EQ(StrTable::LoadStr(453), "Driftwell Backup");
    for (int id = 0; id < 600; ++id)
        EXPECT_FALSE(StrTable::LoadStr(id).isEmpty()) << "id " << id;
    EXPECT_TRUE(StrTable::LoadStr(-1).isEmpty());
    EXPECT_TRUE(StrTable::LoadStr(600).isEmpty());
}

TEST_F(StrTableTest, EveryCatalogueTranslatesTheLauncherRows)
{
    struct Row {
        const char* code;
        const char* language;
        QResource::Compression storage;
    };
    const Row rows[] = {
        {"enu", "en_US", QResource::ZlibCompression}, {"cht", "zh_TW", QResource::NoCompression},
        {"chs", "zh_CN", QResource::NoCompression},   {"jpn", "ja_JP", QResource::NoCompression},
        {"deu", "de_DE", QResource::ZlibCompression}, {"krn", "ko_KR", QResource::NoCompression},
        {"fra", "fr_FR", QResource::ZlibCompression}, {"ita", "it_IT", QResource::ZlibCompression},
        {"esn", "es_ES", QResource::ZlibCompression}, {"ptb", "pt_BR", QResource::ZlibCompression},
        {"rus", "ru_RU", QResource::ZlibCompression}, {"dan", "da_DK", QResource::ZlibCompression},
        {"nor", "nb_NO", QResource::ZlibCompression}, {"sve", "sv_SE", QResource::ZlibCompression},
        {"nld", "nl_NL", QResource::ZlibCompression}, {"plk", "pl_PL", QResource::ZlibCompression},
        {"hun", "hu_HU", QResource::ZlibCompression}, {"ptg", "pt_PT", QResource::ZlibCompression},
        {"trk", "tr_TR", QResource::ZlibCompression}, {"csy", "cs_CZ", QResource::ZlibCompression},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.code);
        const QString path = QStringLiteral(":/%1.qm").arg(row.code);
        const QResource resource(path);
        ASSERT_TRUE(resource.isValid());
        EXPECT_EQ(resource.compressionAlgorithm(), row.storage);

        QTranslator translator;
        ASSERT_TRUE(translator.load(path));
        EXPECT_EQ(translator.language(), row.language);
        ScopedTranslator installed(&translator);
        EXPECT_EQ(StrTable::LoadStr(453), "Talvane Driftwell");
        const QString ready = StrTable::LoadStr(16);
        const QString initializing = StrTable::LoadStr(54);
        EXPECT_FALSE(ready.isEmpty());
        EXPECT_FALSE(initializing.isEmpty());
        if (qstrcmp(row.code, "enu") != 0) {
            EXPECT_NE(ready, kReady);
            EXPECT_NE(initializing, kInitializing);
        }
    }
}

TEST_F(StrTableTest, GermanCatalogueUnderContextGlobal)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/deu.qm")));
    EXPECT_EQ(translator.translate("global", kReady), "Driftwell ist bereit.");
    EXPECT_TRUE(translator.translate("other", kReady).isEmpty());
    ScopedTranslator installed(&translator);
    EXPECT_EQ(StrTable::LoadStr(16), "Driftwell ist bereit.");
}

// Answers only what LoadStr must ask for: context "global", the English text
// (never the key), no disambiguation, n = -1.
class EscapesTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation, int n) const override
    {
        if (qstrcmp(context, "global") == 0 && qstrcmp(sourceText, kReady) == 0 && !disambiguation && n == -1)
            return QStringLiteral("a\\nb\\tc\\N\\T\nd\\\\ne");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(StrTableTest, BackslashSequencesBecomeNewlineAndTab)
{
    EscapesTranslator translator;
    ScopedTranslator installed(&translator);
    // Upper-case sequences and real line breaks stay; of a doubled backslash
    // before n, the second one and the n become the newline.
    EXPECT_EQ(StrTable::LoadStr(16), "a\nb\tc\\N\\T\nd\\\ne");
}

TEST_F(StrTableTest, LookupStrIDIgnoresCase)
{
    const struct {
        const char* key;
        int id;
    } rows[] = {
        {"app_name", 453},
        {"APP_NAME", 453},
        {"desc_dwel_env_preparation_done", 16},
        {"Desc_Dwel_Env_Preparing", 54},
        {"wizard_ssl_change_sync_folder_warning", 0},
        {"btn_settings", 599},
        {"nsis_not_admin_confirm", 123},
        {"no_such_key", -1},
        {"app_name ", -1},
        {"", -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(row.key)), row.id) << "'" << row.key << "'";
}

}  // namespace

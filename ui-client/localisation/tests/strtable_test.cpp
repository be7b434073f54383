#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QResource>
#include <QTranslator>

#include <utility>

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

TEST(StrTable, EnglishWithoutTranslatorAndEmptyOutsideTheTable)
{
    EXPECT_EQ(StrTable::LoadStr(16), kReady);
    EXPECT_EQ(StrTable::LoadStr(54), kInitializing);
    EXPECT_EQ(StrTable::LoadStr(453), "Driftwell Backup");
    for (int id = 0; id < 600; ++id)
        EXPECT_FALSE(StrTable::LoadStr(id).isEmpty()) << "id " << id;
    EXPECT_TRUE(StrTable::LoadStr(-1).isEmpty());
    EXPECT_TRUE(StrTable::LoadStr(600).isEmpty());
}

TEST(StrTable, EveryCatalogueTranslatesTheLauncherRows)
{
    const QStringList codes = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                               "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};
    const QStringList uncompressed = {"cht", "chs", "jpn", "krn"};
    for (const QString& code : codes) {
        SCOPED_TRACE(qPrintable(code));
        const QString path = ":/" + code + ".qm";
        const QResource resource(path);
        ASSERT_TRUE(resource.isValid());
        EXPECT_EQ(resource.compressionAlgorithm(),
                  uncompressed.contains(code) ? QResource::NoCompression : QResource::ZlibCompression);

        QTranslator translator;
        ASSERT_TRUE(translator.load(path));
        ScopedTranslator installed(&translator);
        EXPECT_EQ(StrTable::LoadStr(453), "Talvane Driftwell");
        EXPECT_FALSE(StrTable::LoadStr(16).isEmpty());
        EXPECT_FALSE(StrTable::LoadStr(54).isEmpty());
        if (code != "enu") {
            EXPECT_NE(StrTable::LoadStr(16), kReady);
            EXPECT_NE(StrTable::LoadStr(54), kInitializing);
        }
    }
}

TEST(StrTable, GermanCatalogueUnderContextGlobal)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/deu.qm")));
    EXPECT_EQ(translator.translate("global", kReady), "Driftwell ist bereit.");
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

// The string table, and every compiled catalogue read back through the
// resource collection the launcher loads: exactly the table's English texts,
// each with a translation that keeps the text's markers. LoadStr would hide a
// missing message behind the English fall-back, so the translator is asked
// directly and the catalogue's sources are listed by lconvert.
#include "named_rows.h"
#include "strtable.h"
#include "texts_app_environment.h"

#include <gtest/gtest.h>

#include <utility>

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QResource>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

::testing::Environment* const qtEnv = ::testing::AddGlobalTestEnvironment(new TextsAppEnvironment);

struct Language : dwtest::Row {  // the catalogue's code
    const char* locale;          // for the month and weekday names
};

const Language kLanguages[] = {
    {"enu", "en_US"}, {"cht", "zh_TW"}, {"chs", "zh_CN"}, {"jpn", "ja_JP"}, {"deu", "de_DE"},
    {"krn", "ko_KR"}, {"fra", "fr_FR"}, {"ita", "it_IT"}, {"esn", "es_ES"}, {"ptb", "pt_BR"},
    {"rus", "ru_RU"}, {"dan", "da_DK"}, {"nor", "nb_NO"}, {"sve", "sv_SE"}, {"nld", "nl_NL"},
    {"plk", "pl_PL"}, {"hun", "hu_HU"}, {"ptg", "pt_PT"}, {"trk", "tr_TR"}, {"csy", "cs_CZ"},
};

QStringList Matches(const QString& pattern, const QString& text)
{
    QStringList found;
    auto it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found << it.next().captured(0);
    found.sort();
    return found;
}

// What must survive translation, as one line to compare. Order of the
// arguments may change with the grammar; an accelerator may move to another
// letter.
std::string MarkersOf(const QString& text)
{
    return QString("args(%1) markup(%2) style '%3' \\n x%4 \\t x%5 & x%6")
        .arg(Matches(QStringLiteral("%[0-9]"), text).join(' '),
             Matches(QStringLiteral("\\[[A-Za-z_]+\\]"), text).join(' '),
             QRegularExpression(QStringLiteral("^\\{\\\\[A-Za-z]+\\}")).match(text).captured(0))
        .arg(text.count(QStringLiteral("\\n")))
        .arg(text.count(QStringLiteral("\\t")))
        .arg(QString(text).remove(QStringLiteral("&&")).count(QLatin1Char('&')))
        .toStdString();
}

// The untranslated table: each distinct English text, as the catalogues hold
// it (backslash sequences as typed, not the control characters LoadStr makes),
// with the ids using it.
QMap<QString, QList<int>> TableTexts()
{
    QMap<QString, QList<int>> texts;
    for (int id = 0; id < 600; ++id) {
        QString text = StrTable::LoadStr(id);
        texts[text.replace('\n', QLatin1String("\\n")).replace('\t', QLatin1String("\\t"))].append(id);
    }
    return texts;
}

// The sources of the catalogue's messages as lconvert reads them from the
// compiled file; each message must be plain: no comment, no plural forms,
// finished.
QStringList ListCatalogue(const QString& code)
{
    QFile qm(":/" + code + ".qm");
    QProcess lconvert;
    lconvert.start(DW_LCONVERT, {"-if", "qm", "-i", "-", "-of", "ts", "-o", "-"});
    lconvert.write(qm.open(QIODevice::ReadOnly) ? qm.readAll() : QByteArray());
    lconvert.closeWriteChannel();
    EXPECT_TRUE(lconvert.waitForFinished(60000) && lconvert.exitCode() == 0)
        << "lconvert failed: " << lconvert.readAllStandardError().constData();
    QStringList sources;
    QXmlStreamReader xml(lconvert.readAllStandardOutput());
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("message"))
            continue;
        bool plain = !xml.attributes().hasAttribute("numerus");
        QString source;
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("source")) {
                source = xml.readElementText();
                continue;
            }
            // Not plain: a comment, an extra comment, numerus forms, an unfinished translation.
            plain = plain && xml.name() == QLatin1String("translation") &&
                    !xml.attributes().hasAttribute("type");
            xml.skipCurrentElement();
        }
        EXPECT_TRUE(plain) << "comment, plural or unfinished: " << qPrintable(source);
        sources << source;
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return sources;
}

// Translations that are rightly the English text, per language, with the
// reason: "code<TAB>English<TAB>reason" per line.
QMap<QString, QMap<QString, QString>> SameAsEnglish()
{
    QMap<QString, QMap<QString, QString>> same;
    QFile file(DW_SAME_AS_ENGLISH);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << DW_SAME_AS_ENGLISH;
    while (!file.atEnd()) {
        const QStringList f = QString::fromUtf8(file.readLine()).chopped(1).split('\t');
        if (f.size() == 3 && !f[0].startsWith('#'))
            same[f[0]][f[1]] = f[2];
    }
    return same;
}

// The installer pages whose own rows carry accelerators, by key, with the
// installer's buttons each shows (msi_button_*): every wizard page shows
// Back, Next and Cancel (Cancel without an accelerator), the last page Finish
// in place of Next, the licence page Print as well; the files-in-use box is no
// wizard page and shows Retry, Ignore and Exit.
const char* const kPages[] = {
    "msi_eula_dlg_accept msi_eula_dlg_reject back next print",
    "msi_exit_dlg_launch back finish",
    "msi_filesinuse_dlg_closeall msi_filesinuse_dlg_closenone retry ignore exit",
    "msi_maintenance_dlg_change_label msi_maintenance_dlg_remove_label "
    "msi_maintenance_dlg_repair_label back next",
};

// The accelerator's letter, case-folded; "&&" is a literal ampersand.
QChar Accelerator(const QString& text)
{
    const auto match = QRegularExpression(QStringLiteral("(?<!&)(?:&&)*&(\\p{L})")).match(text);
    return match.hasMatch() ? match.captured(1).at(0).toCaseFolded() : QChar();
}

class Catalogue : public testing::TestWithParam<Language> {};

TEST_P(Catalogue, TranslatesExactlyTheTableTextsKeepingTheirMarkers)
{
    const QString code = GetParam().name;
    const QString path = ":/" + code + ".qm";
    const bool cjk = QStringList{"cht", "chs", "jpn", "krn"}.contains(code);
    const QResource resource(path);
    ASSERT_TRUE(resource.isValid());
    EXPECT_EQ(resource.compressionAlgorithm(), cjk ? QResource::NoCompression : QResource::ZlibCompression);

    const QMap<QString, QList<int>> table = TableTexts();
    ASSERT_EQ(496, table.size());
    const QStringList sources = ListCatalogue(code);
    // All in context "global": each table text is found there, and there are no more.
    for (const QString& source : sources)
        EXPECT_TRUE(table.contains(source)) << "not a table text: " << qPrintable(source);
    EXPECT_EQ(496, sources.size());

    QTranslator translator;
    ASSERT_TRUE(translator.load(path));
    const QMap<QString, QString> same = SameAsEnglish().value(code);
    int reworded = 0;
    for (auto it = table.begin(); it != table.end(); ++it) {
        const QString& source = it.key();
        const QString translation = translator.translate("global", source.toUtf8().constData());
        SCOPED_TRACE(qPrintable(source));
        ASSERT_FALSE(translation.isEmpty()) << "no message";
        EXPECT_EQ(MarkersOf(source), MarkersOf(translation)) << qPrintable(translation);
        reworded += translation != source;
        EXPECT_TRUE(code == "enu" || translation != source || same.contains(source))
            << "left in English without a listed reason";
    }
    // The English catalogue has a house style of its own.
    EXPECT_GT(reworded, code == "enu" ? 0 : 400);
    for (auto it = same.begin(); it != same.end(); ++it) {
        EXPECT_EQ(it.key(), translator.translate("global", it.key().toUtf8().constData()))
            << "listed as the English text but translated: " << qPrintable(it.key());
        EXPECT_FALSE(it.value().trimmed().isEmpty()) << "no reason for " << qPrintable(it.key());
    }

    const QString english[] = {StrTable::LoadStr(StrTable::kIdPreparationDone),
                               StrTable::LoadStr(StrTable::kIdPreparing)};
    ScopedTranslator installed(&translator);
    // The launcher's rows; the English catalogue keeps the two dialog texts.
    EXPECT_EQ("Talvane Driftwell", StrTable::LoadStr(StrTable::kIdAppName));
    EXPECT_EQ(code == "enu", english[0] == StrTable::LoadStr(StrTable::kIdPreparationDone));
    EXPECT_EQ(code == "enu", english[1] == StrTable::LoadStr(StrTable::kIdPreparing));
    // Keyed by the English text alone, rows sharing a text cannot differ.
    for (const QList<int>& ids : table)
        for (int id : ids)
            EXPECT_EQ(StrTable::LoadStr(ids.first()), StrTable::LoadStr(id)) << "id " << id;
    const QLocale locale(GetParam().locale);
    const auto named = [](const QString& key) {
        return StrTable::LoadStr(StrTable::LookupStrID(key)).toCaseFolded();
    };
    for (int m = 1; m <= 12; ++m)
        EXPECT_EQ(locale.standaloneMonthName(m).toCaseFolded(),
                  named("month_" + QLocale::c().monthName(m, QLocale::ShortFormat).toLower()));
    for (int d = 1; d <= 7; ++d)
        EXPECT_EQ(locale.standaloneDayName(d).toCaseFolded(), named(QLocale::c().dayName(d).toLower()));
}

TEST_P(Catalogue, GivesEachAcceleratorOfAnInstallerPageToOneControl)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(":/" + QString(GetParam().name) + ".qm"));
    ScopedTranslator installed(&translator);
    for (const char* page : kPages) {
        QMap<QChar, QString> taken;
        for (const QString& word : QString(page).split(' ')) {
            const QString key = word.startsWith("msi_") ? word : "msi_button_" + word;
            const QString text = StrTable::LoadStr(StrTable::LookupStrID(key));
            const QChar letter = Accelerator(text);
            EXPECT_FALSE(letter.isNull()) << "no accelerator: " << qPrintable(key);
            EXPECT_FALSE(taken.contains(letter))
                << page << ": " << qPrintable(taken.value(letter)) << " and " << qPrintable(text);
            taken.insert(letter, text);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Catalogue, testing::ValuesIn(kLanguages), dwtest::RowName());

TEST(StrTable, EnglishWithoutTranslatorAndEmptyOutsideTheTable)
{
    EXPECT_EQ(StrTable::LoadStr(16), "Driftwell is ready.");
    EXPECT_EQ(StrTable::LoadStr(54), "Driftwell is initializing...");
    EXPECT_EQ(StrTable::LoadStr(453), "Driftwell Backup");
    EXPECT_TRUE(StrTable::LoadStr(-1).isEmpty());
    EXPECT_TRUE(StrTable::LoadStr(600).isEmpty());
}

// The English table's shape: how many texts its rows share, and how many rows
// carry each kind of marker.
TEST(StrTable, EnglishTableHasItsShape)
{
    const QMap<QString, QList<int>> table = TableTexts();
    int shared = 0, args = 0, accelerators = 0, markup = 0, styles = 0;
    for (auto it = table.begin(); it != table.end(); ++it) {
        const QString& text = it.key();
        const int rows = it.value().size();
        shared += rows > 1;
        args += text.contains(QLatin1String("%1")) ? rows : 0;
        accelerators += QString(text).remove(QStringLiteral("&&")).contains('&') ? rows : 0;
        markup += text.contains(QRegularExpression(QStringLiteral("\\[[A-Za-z_]+\\]"))) ? rows : 0;
        styles += text.startsWith(QLatin1String("{\\")) ? rows : 0;
    }
    EXPECT_EQ(72, shared);
    EXPECT_EQ(3, table.value("Cancel").size());
    EXPECT_EQ(28, args);
    EXPECT_EQ(20, accelerators);
    EXPECT_EQ(36, markup);
    EXPECT_EQ(7, styles);
}

// Answers only what LoadStr must ask for: context "global", the English text
// (never the key), no disambiguation, n = -1.
class EscapesTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override
    {
        if (qstrcmp(context, "global") == 0 && qstrcmp(sourceText, "Driftwell is ready.") == 0 &&
            !disambiguation && n == -1)
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

// TalvLocale: maps the system locale to a three-letter language code.
#include "TalvLocale.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QtGlobal>

// One debug line: the source path, the line, the expression as written and its
// value. The logger context is spelled out because qDebug() leaves file and
// function empty in release builds.
#define TALV_TRACE(format, expr)                                                                             \
    QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO)                                                          \
        .debug(format, "../libcommon/TalvLocale", __LINE__, #expr, expr)

namespace TalvLocale {
namespace {

// The index of a code is its language id; the null entry ends the table.
const char* const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",   "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};
constexpr int kLanguageCount = int(sizeof(grgszLanguages) / sizeof(grgszLanguages[0])) - 1;

const QString qstrLanguageFallSafe = QStringLiteral("enu");

// The locale name as the environment gives it ('pt', 'pt_PT.UTF-8', 'C'),
// without codeset and modifier. QLocale fills in a country first, and a bare
// 'pt' reads as 'pt_BR' there; it is asked only where no variable is set, as
// on a desktop that starts programs without them.
QString SystemLocaleName()
{
    // The variables that choose the language of messages, in their precedence.
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = QString::fromLocal8Bit(qgetenv(variable));
        if (!value.isEmpty())
            return value.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    }
    return QLocale::system().name();
}

}  // namespace

QString getDefaultLanguage()
{
    const QString qstrLocaleLower = SystemLocaleName().toLower();
    TALV_TRACE("%s:%d %s=[%s\n] ", qPrintable(qstrLocaleLower));
    TALV_TRACE("%s:%d %s=[%s] ", qPrintable(qstrLocaleLower));

    QString qstrDef;
    if (qstrLocaleLower == QLatin1String("zh_tw") || qstrLocaleLower == QLatin1String("zh_hk") ||
        qstrLocaleLower == QLatin1String("zh_mo"))
        qstrDef = QStringLiteral("cht");
    if (qstrLocaleLower == QLatin1String("pt") || qstrLocaleLower == QLatin1String("pt_pt"))
        qstrDef = QStringLiteral("ptg");

    if (qstrDef.isEmpty()) {
        const QMap<QString, QString> languageMap = {
            {"en", "enu"}, {"zh", "chs"}, {"ja", "jpn"}, {"de", "deu"}, {"ko", "krn"},
            {"fr", "fra"}, {"it", "ita"}, {"es", "esn"}, {"pt", "ptb"}, {"ru", "rus"},
            {"da", "dan"}, {"no", "nor"}, {"nb", "nor"}, {"nn", "nor"}, {"sv", "sve"},
            {"nl", "nld"}, {"pl", "plk"}, {"hu", "hun"}, {"tr", "trk"}, {"cs", "csy"},
        };
        const QString language = qstrLocaleLower.section(QLatin1Char('_'), 0, 0);
        qstrDef = languageMap.value(language, languageMap.value(QStringLiteral("en")));
    }

    // Only a code whose catalogue is compiled in is worth installing; start-up
    // copes on its own when even the fall-back catalogue fails to load.
    if (!isLanguageInstalled(qstrDef))
        qstrDef = qstrLanguageFallSafe;

    TALV_TRACE("%s:%d %s=[%s\n] ", qPrintable(qstrDef));
    return qstrDef;
}

bool isLanguageInstalled(const QString& code)
{
    const QString qstrLangFileName = QStringLiteral(":/") + code + QStringLiteral(".qm");
    if (!QFile(qstrLangFileName).exists())
        return false;
    TALV_TRACE("%s:%d %s=[%s] ", qPrintable(qstrLangFileName));
    return true;
}

QStringList getSupportedLanguages()
{
    QStringList languages;
    for (int id = 0; id < kLanguageCount; ++id)
        languages.append(QString::fromLatin1(grgszLanguages[id]));
    return languages;
}

QString getStrLanguageFallSafe()
{
    return qstrLanguageFallSafe;
}

QString getLanguageAbbrByID(int id)
{
    if (id < 0 || id >= kLanguageCount)
        return QString();
    return QString::fromLatin1(grgszLanguages[id]);
}

}  // namespace TalvLocale

// TalvLocale: the user interface language as a three-letter code.
#ifndef DW_UI_CLIENT_LIBCOMMON_TALVLOCALE_H
#define DW_UI_CLIENT_LIBCOMMON_TALVLOCALE_H

#include <QString>
#include <QStringList>

namespace TalvLocale {
// The code for the system locale; "enu" when unknown or not compiled in.
QString getDefaultLanguage();
// True when ":/" + code + ".qm" exists.
bool isLanguageInstalled(const QString& code);
QStringList getSupportedLanguages();
QString getStrLanguageFallSafe();
// The code with that id (0 to 19); empty for any other id.
QString getLanguageAbbrByID(int id);
}  // namespace TalvLocale

#endif

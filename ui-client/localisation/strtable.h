// StrTable: every user-visible text by id (0 to 599), translated through the
// installed catalogue with context "global" and the English text as source.
#ifndef DW_UI_CLIENT_LOCALISATION_STRTABLE_H
#define DW_UI_CLIENT_LOCALISATION_STRTABLE_H

#include <QString>

namespace StrTable {
// The rows the launcher shows.
constexpr int kIdPreparationDone = 16;  // "Driftwell is ready."
constexpr int kIdPreparing = 54;        // "Driftwell is initializing..."
constexpr int kIdAppName = 453;         // the dialog's title

// Fills the table; call once on the main thread before any other thread runs.
void InitStrTable();
// The translated text, with "\n" and "\t" (backslash sequences) turned into a
// newline and a tab. An id outside 0 to 599, or a call before InitStrTable,
// gives an empty text.
QString LoadStr(int id);
// The id of a key (case-insensitive), or -1.
int LookupStrID(QString key);
}  // namespace StrTable

// The resource collection "texts" with the catalogues ":/<code>.qm", made by
// rcc. Registering twice is harmless; a static initialiser also registers it
// once this object is linked in.
int qInitResources_texts();
int qCleanupResources_texts();

#endif

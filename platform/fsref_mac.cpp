// FSPathMakeRef and FSRefMakePath come from CoreServices on macOS; this file
// only keeps the one-file-per-system layout complete.
#include "fsref.h"

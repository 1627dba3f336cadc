// Reading and writing profiles: the part that Debian keeps in a shared object, where there are
// none.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

template class CSimpleIniTempl<char, SI_GenericNoCase<char>, SI_ConvertA<char>>;

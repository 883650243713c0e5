#include "UserInterfaceLanguage.h"

#include <windows.h>

std::string userInterfaceLanguage()
{
    wchar_t name[16] = {};
    const int count = GetLocaleInfoW(MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT), LOCALE_SISO639LANGNAME, name,
                                     static_cast<int>(sizeof name / sizeof *name));
    std::string language;
    // The count includes the terminating zero, and is zero when the call fails. ISO 639 codes are plain ASCII.
    for (int i = 0; i < count - 1; ++i)
        language += static_cast<char>(name[i]);
    return language;
}

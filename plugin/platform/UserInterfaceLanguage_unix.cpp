#include "UserInterfaceLanguage.h"

#include <cstdlib>

namespace {
std::string environmentValue(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}
} // namespace

std::string userInterfaceLanguage()
{
    std::string locale = environmentValue("LANGUAGE");
    locale = locale.substr(0, locale.find(':'));
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.empty())
            locale = environmentValue(name);
    }
    const std::string language = locale.substr(0, locale.find_first_of("_-.@"));
    return language == "C" || language == "POSIX" ? std::string() : language;
}

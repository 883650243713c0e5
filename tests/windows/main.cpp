#include "UserInterfaceLanguage.h"

#include <windows.h>

#include <cstdio>
#include <vector>

namespace {
std::vector<char> versionResource()
{
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::vector<char> resource(GetFileVersionInfoSizeA(path, nullptr));
    GetFileVersionInfoA(path, 0, static_cast<DWORD>(resource.size()), resource.data());
    return resource;
}

const char* text(const std::vector<char>& resource, const char* path)
{
    void* value = nullptr;
    UINT length = 0;
    return VerQueryValueA(resource.data(), path, &value, &length) ? static_cast<const char*>(value) : "missing";
}
} // namespace

/// Prints the language, and the product's name and version from the version resource.
int main()
{
    const std::vector<char> resource = versionResource();
    std::printf("%s\n%s %s\n", userInterfaceLanguage().c_str(),
                text(resource, "\\StringFileInfo\\040904b0\\ProductName"),
                text(resource, "\\StringFileInfo\\040904b0\\ProductVersion"));
    return 0;
}

#pragma once

#include <string>

/// The two-letter ISO 639 code of the language in which the desktop speaks to the person, for example "de"; empty when
/// it cannot be told.
///
/// The library's only platform call. Free of Qt on purpose: the Windows half is compiled and run on its own by the
/// tests, where no Qt for Windows is at hand.
std::string userInterfaceLanguage();

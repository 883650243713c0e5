#include "EnrollmentLink.h"
#include "FuzzHost.h"

#include <QUrl>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = fuzzedText(data, size);
    if (const auto link = findEnrollmentLink(text)) {
        require(!link->host.isEmpty());
        require(link->token.size() == 32);
        bool isNumber = false;
        const int port = link->port.toInt(&isNumber);
        require(isNumber && port >= 0 && port <= 65535);
        require(text.contains(QLatin1String("https:")));
    }
    return 0;
}

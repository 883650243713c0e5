#include "BrandingStrings.h"
#include "FuzzHost.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    static const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("oem.strings")));
    require(file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char*>(data), qint64(size)) >= 0);
    file.close();
    const BrandingStrings strings(directory.path());
    require(!strings.companyName.isEmpty() && !strings.agentName.isEmpty());
    require(strings.productFullName == strings.companyName + QLatin1Char(' ') + strings.agentName);
    require(strings.vendorName == QLatin1String("BRISEL"));
    return 0;
}

#include "EnrollmentLink.h"

#include <QUrl>

namespace {
constexpr int tokenLength = 32;

bool isLetterOrDigit(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || (code >= '0' && code <= '9');
}

/// The first match of "https:\S*[A-Za-z0-9]{32}". Made by hand because the clipboard may hold megabytes: this takes one
/// pass where the engines of regular expressions take quadratic time.
QString firstLink(const QString& text)
{
    const QString scheme = QStringLiteral("https:");
    for (int start = text.indexOf(scheme); start >= 0;) {
        int end = -1;
        int position = start + scheme.size();
        for (int run = 0; position < text.size() && !text.at(position).isSpace(); ++position) {
            run = isLetterOrDigit(text.at(position)) ? run + 1 : 0;
            if (run >= tokenLength)
                end = position + 1;
        }
        if (end >= 0)
            return text.mid(start, end - start);
        start = text.indexOf(scheme, position);
    }
    return {};
}
} // namespace

std::optional<EnrollmentLink> findEnrollmentLink(const QString& text)
{
    const QUrl url(firstLink(text), QUrl::TolerantMode);
    const QString host = url.host(QUrl::FullyDecoded);
    const QString path = url.path(QUrl::FullyDecoded);
    if (!url.isValid() || url.scheme() != QLatin1String("https") || host.isEmpty() || path.size() <= tokenLength)
        return std::nullopt;
    return EnrollmentLink{host, QString::number(url.port(defaultPort)), path.right(tokenLength)};
}

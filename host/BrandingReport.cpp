#include "BrandingReport.h"

#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {
const QStringList knownKeys{QStringLiteral("companyName"), QStringLiteral("agentName"),
                            QStringLiteral("supportWebsite"), QStringLiteral("supportEmail"),
                            QStringLiteral("supportPhone")};

// Stands before what QSettings would deserialise; a noncharacter, which no text has.
constexpr QChar mark(0xFDD0);

const QByteArray byteOrderMark("\xEF\xBB\xBF");

bool isUtf8(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes.constData(), bytes.size()).toUtf8() == bytes;
}
} // namespace

BrandingReport::BrandingReport(const QString& path) : file(path)
{
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly)) {
        remarks << QStringLiteral("cannot be read: %1").arg(source.errorString());
        return;
    }
    QByteArray content = source.readAll();
    if (content.startsWith("\xFF\xFE") || content.startsWith("\xFE\xFF")) {
        remarks << QStringLiteral("this is UTF-16, of which nothing is understood: save it as UTF-8");
        for (const QString& key : knownKeys)
            values.append({key, QString()});
        return;
    }
    // As the plugin does: without the mark, and as UTF-8 for QSettings.
    const bool isMarked = content.startsWith(byteOrderMark);
    if (isMarked)
        content.remove(0, byteOrderMark.size());
    if (!isUtf8(content)) {
        remarks << QStringLiteral("this is not valid UTF-8 and is taken for Latin-1: save it as UTF-8");
        if (!isMarked)
            content = QString::fromLatin1(content.constData(), content.size()).toUtf8();
    }
    scan(content);
    read(content);
}

void BrandingReport::scan(const QByteArray& content)
{
    const auto remark = [this](int line, const QString& text) {
        remarks << QStringLiteral("line %1: %2").arg(line).arg(text);
    };
    bool inQuotes = false;
    int number = 0;
    for (const QByteArray& whole : content.split('\n')) {
        ++number;
        const QByteArray line = whole.trimmed();
        if (!inQuotes && (line.isEmpty() || line.startsWith(';') || line.startsWith('[')))
            continue;
        if (!inQuotes && !line.contains('='))
            remark(number, QStringLiteral("ignored, because it has no \"=\""));
        const bool goesOn = inQuotes;
        for (int i = 0; i < line.size(); ++i) {
            if (line.at(i) == '\\') {
                ++i;
            } else if (line.at(i) == '"') {
                inQuotes = !inQuotes;
            } else if (line.at(i) == ';' && !inQuotes) {
                remark(number, QStringLiteral("cut at the semicolon: put the value in quotes"));
                break;
            }
        }
        if (inQuotes && !goesOn)
            remark(number, QStringLiteral("the quote is not closed, so that the value goes on in the next line"));
    }
}

void BrandingReport::read(const QByteArray& content)
{
    // Read by QSettings as the plugin does, from a copy in which a serialised object is only a text: a few bytes of one
    // may ask for any amount of memory. Quotes and escapes can hide its beginning.
    const QRegularExpression suspect(QStringLiteral(R"([=,][ \t]*+\K(?=[" \t]*+(?:\\|@["\\DV])))"));
    QTemporaryFile copy;
    if (!copy.open() || copy.write(QString::fromUtf8(content).replace(suspect, mark).toUtf8()) < 0 || !copy.flush()) {
        remarks << copy.errorString();
        return;
    }
    QSettings settings(copy.fileName(), QSettings::IniFormat);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    settings.setIniCodec("UTF-8");
#endif

    for (const QString& key : knownKeys) {
        const QVariant value = settings.value(key);
        QString text = value.toString();
        if (text.startsWith(mark + QLatin1String("@Variant(")) || text.startsWith(mark + QLatin1String("@DateTime("))
            || (value.isValid() && !value.canConvert<QString>()))
            text.clear();
        text.remove(mark);
        values.append({key, text.isEmpty() ? QString() : text});
        if (value.userType() == QMetaType::QStringList && text.isEmpty())
            remarks << QStringLiteral("%1 is ignored, because a comma outside quotes makes a list: put it in quotes")
                           .arg(key);
        else if (value.isValid() && value.toString().isEmpty())
            remarks << QStringLiteral("%1 is empty").arg(key);
        else if (value.isValid() && text.isEmpty())
            remarks << QStringLiteral("%1 is ignored, because it is no text").arg(key);
    }
    // On Windows other capitals make the same key.
    const auto isKnown = [&](const QString& key) {
        return std::any_of(knownKeys.cbegin(), knownKeys.cend(), [&](const QString& known) {
            return known.compare(key, Qt::CaseInsensitive) == 0 && settings.contains(known);
        });
    };
    for (const QString& key : settings.allKeys()) {
        const int slash = key.lastIndexOf(QLatin1Char('/'));
        if (slash >= 0)
            remarks << QStringLiteral("%1 is ignored, because it is in the section [%2]")
                           .arg(key.mid(slash + 1), key.left(slash));
        else if (!isKnown(key))
            remarks << QStringLiteral("%1 is ignored, because there is no such key: %2")
                           .arg(key, knownKeys.join(QStringLiteral(", ")));
    }
}

bool BrandingReport::print() const
{
    QString text;
    QTextStream out(&text);
    out << file << '\n';
    for (const auto& value : values)
        out << "  " << value.first.leftJustified(16)
            << (value.second.isNull() ? QStringLiteral("(default)")
                                      : QString(value.second).replace(QLatin1Char('\n'), QLatin1String("\\n")))
            << '\n';
    for (const QString& remark : remarks)
        out << remark << '\n';
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return false;
#ifdef Q_OS_WIN
    output.write(text.toLocal8Bit());
#else
    // A terminal without a locale would get question marks.
    output.write(text.toUtf8());
#endif
    return remarks.isEmpty();
}

#include "BrandingReport.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {
const QStringList knownKeys{QStringLiteral("companyName"), QStringLiteral("agentName"),
                            QStringLiteral("supportWebsite"), QStringLiteral("supportEmail"),
                            QStringLiteral("supportPhone")};

const QByteArray byteOrderMark("\xEF\xBB\xBF");

bool isUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}
} // namespace

BrandingReport::BrandingReport(const QString& path) : file(path)
{
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly)) {
        remarks << QStringLiteral("cannot be read: %1").arg(source.errorString());
        return;
    }
    const QByteArray content = source.readAll();
    if (content.startsWith("\xFF\xFE") || content.startsWith("\xFE\xFF")) {
        remarks << QStringLiteral("this is UTF-16, of which nothing is understood: save it as UTF-8");
        for (const QString& key : knownKeys)
            values.append({key, QString()});
        return;
    }
    if (!isUtf8(content))
        remarks << QStringLiteral("this is not valid UTF-8 and is taken for Latin-1: save it as UTF-8");
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
        if (!inQuotes && (line.isEmpty() || line.startsWith(';') || line.startsWith('[') || line == byteOrderMark))
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
    // Read by QSettings as the plugin does, but from a copy in which a serialised object is only a text: a few bytes of
    // one may ask for any amount of memory.
    QTemporaryFile copy;
    if (!copy.open() || copy.write(QByteArray(content).replace("@Variant(", "@@Variant(")) < 0 || !copy.flush()) {
        remarks << copy.errorString();
        return;
    }
    QSettings settings(copy.fileName(), QSettings::IniFormat);
    if (isUtf8(content))
        settings.setIniCodec("UTF-8");

    const QString mark = QString::fromLatin1(byteOrderMark);
    for (const QString& key : knownKeys) {
        QVariant value = settings.value(key);
        if (value.toString().isEmpty() && settings.contains(mark + key))
            value = settings.value(mark + key);
        QString text = value.toString();
        if (text.startsWith(QLatin1String("@Variant(")) || (value.isValid() && !value.canConvert<QString>()))
            text.clear();
        values.append({key, text.isEmpty() ? QString() : text});
        if (value.type() == QVariant::StringList && text.isEmpty())
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
            return known.compare(key, Qt::CaseInsensitive) == 0
                && (settings.contains(known) || settings.contains(mark + known));
        });
    };
    for (QString key : settings.allKeys()) {
        key.remove(mark);
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
    QTextStream out(stdout);
#ifndef Q_OS_WIN
    // A terminal without a locale would get question marks.
    out.setCodec("UTF-8");
#endif
    out << file << '\n';
    for (const auto& value : values)
        out << "  " << value.first.leftJustified(16)
            << (value.second.isNull() ? QStringLiteral("(default)")
                                      : QString(value.second).replace(QLatin1Char('\n'), QLatin1String("\\n")))
            << '\n';
    for (const QString& remark : remarks)
        out << remark << '\n';
    return remarks.isEmpty();
}

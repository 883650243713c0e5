#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a branding file gives, key by key, and what in it is ignored. The plugin says neither.
struct BrandingReport {
    explicit BrandingReport(const QString& path);

    /// The five keys and their values; a null value leaves the default.
    QVector<QPair<QString, QString>> values;
    /// What an administrator should know or mend, one line each.
    QStringList remarks;

    /// Prints the report on standard output. True when there was nothing to remark.
    bool print() const;

private:
    void scan(const QByteArray& content);
    void read(const QByteArray& content);

    QString file;
};

#pragma once

#include <QString>

/// The names of product, company, services and support contacts that the dialogs show.
///
/// A deployment replaces the company name, the agent's name and the support contacts with an INI file "oem.strings"
/// beside the host executable. A key that is missing or empty leaves its default.
struct BrandingStrings {
    /// Reads "oem.strings" in @p directory. An empty directory leaves the defaults.
    explicit BrandingStrings(const QString& directory);

    QString agentServiceName = QStringLiteral("ZENTAgent");
    QString serviceName = QStringLiteral("ZENTService");
    QString vendorName = QStringLiteral("BRISEL");
    QString companyName = QStringLiteral("Ostrel");
    QString supportWebsite = QStringLiteral("https://support.brisel.example");
    QString agentName = QStringLiteral("Tavik");
    QString productFullName = companyName + QLatin1Char(' ') + agentName;
    QString securityProductName = vendorName + QStringLiteral(" Varnek");
    QString productDirectory = QStringLiteral("\\Ostrel\\");
    // The next three keep the default company name: services and tasks already registered on a machine are found by
    // them, whatever a deployment calls itself.
    QString rmmAgentName = companyName + QStringLiteral(" Remote Monitoring and Management Agent");
    QString rmmConsoleName = companyName + QStringLiteral(" Remote Monitoring and Management Console");
    QString updatingTaskName = companyName + QStringLiteral(" VQS Updating Task");
    QString rspName = QStringLiteral("ZentRsp");
    QString remoteControlProcessName = QStringLiteral("Quorix");
    QString supportEmail;
    QString supportPhone;
    QString dataDirectory;
};

/// The record of this process, read once at the first call from the directory of the executable.
const BrandingStrings& brandingStrings();

#pragma once

#include <QString>

#include <optional>

/// The port of an address that names none.
constexpr int defaultPort = 443;

/// What an enrollment link says: `https://<host>[:<port>]/<path that ends in the token>`.
struct EnrollmentLink {
    QString host;
    /// In decimal; the default port when the link names none.
    QString port;
    /// 32 characters.
    QString token;
};

/// The first enrollment link within @p text, if that is usable.
std::optional<EnrollmentLink> findEnrollmentLink(const QString& text);

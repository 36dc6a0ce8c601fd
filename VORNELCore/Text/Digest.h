#pragma once

#include <QCryptographicHash>
#include <QString>

namespace vornel {

/// Identifies bytes: their SHA-256, in lower-case hexadecimal digits. Slow for many.
inline QString sha256Of(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

} // namespace vornel

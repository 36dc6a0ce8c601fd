#include "DraftKeeping.h"

#include <QCryptographicHash>

namespace vornel {

QString KeptDraft::digestOf(const QString &savedText)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(savedText.toUtf8(), QCryptographicHash::Sha256).toHex());
}

} // namespace vornel

#include "DragPayload.h"

#include <VORNELCore/Records/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel::DragPayload {

namespace {

const QString prefix = u"vornel-skills:"_s;

} // namespace

QString encode(const QSet<QUuid> &ids)
{
    QStringList texts;
    for (const QUuid &id : ids)
        texts.append(uuidText(id));
    texts.sort();
    return prefix + texts.join(u',');
}

QSet<QUuid> decode(const QStringList &texts)
{
    QSet<QUuid> ids;
    for (const QString &text : texts) {
        if (!text.startsWith(prefix))
            continue;
        const QStringList pieces = text.mid(prefix.size()).split(u',', Qt::SkipEmptyParts);
        for (const QString &piece : pieces) {
            if (const auto id = uuidFromText(piece))
                ids.insert(*id);
        }
    }
    return ids;
}

} // namespace vornel::DragPayload

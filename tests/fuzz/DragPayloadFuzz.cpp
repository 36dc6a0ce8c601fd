#include "Promise.h"

#include <VORNELApp/Actions/DragPayload.h>
#include <VORNELCore/Records/SerializedForms.h>

using namespace vornel;
using Fuzz::promise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList texts = QString::fromUtf8(Fuzz::bytes(data, size)).split(u'\n');
    const QSet<QUuid> ids = DragPayload::decode(texts);
    promise(DragPayload::decode({DragPayload::encode(ids)}) == ids, "what was read can be carried on");
    promise(DragPayload::decode(texts + texts) == ids, "a text twice is a text once");

    QSet<QUuid> fromEach;
    for (const QString &text : texts) {
        const QSet<QUuid> some = DragPayload::decode({text});
        promise(some.isEmpty() || text.startsWith(u"vornel-skills:"), "foreign texts carry nothing");
        fromEach += some;
    }
    promise(fromEach == ids, "the texts are read one by one");
    for (const QUuid &id : ids)
        promise(texts.join(u'\n').contains(uuidText(id), Qt::CaseInsensitive), "no identifier is made up");
    return 0;
}

#include "SkillDrift.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace vornel {

Drift SkillDrift::of(const QUuid &id) const
{
    const QList<CopyInspection> wrong = copies(id);
    return wrong.isEmpty() ? Drift::unknown : worstDrift(wrong);
}

QList<CopyInspection> SkillDrift::copies(const QUuid &id) const
{
    if (!m_wrong) {
        try {
            m_wrong = m_copies.wrongCopies().result();
        } catch (const std::exception &) {
            // Another program may be writing, for example. A report without the causes is better than none.
            m_wrong.emplace();
        }
    }
    return m_wrong->value(id);
}

QJsonValue SkillDrift::addedTo(const QJsonValue &records) const
{
    if (records.isArray()) {
        QJsonArray array = records.toArray();
        for (QJsonValueRef record : array)
            record = addedTo(record);
        return array;
    }
    if (!records.isObject())
        return records;
    QJsonObject object = records.toObject();
    for (QJsonValueRef field : object)
        field = addedTo(field);
    if (object.value(u"syncState"_s) == rawValue(SyncState::drifted)) {
        const QJsonObject identified =
            object.value(u"manifest"_s).toObject(object); // a detail has its identifier in there
        const auto id = uuidFromText(identified.value(u"id"_s).toString());
        object.insert(u"drift"_s, rawValue(of(id.value_or(QUuid()))));
    }
    return object;
}

} // namespace vornel

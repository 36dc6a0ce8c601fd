#include "RecordJson.h"

#include "SerializedForms.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QMetaObject>
#include <QSequentialIterable>
#include <QStringList>
#include <QUuid>

#include <string_view>

namespace vornel::RecordJson {

namespace {

/// The enumeration that a type stands for; invalid when it stands for none.
QMetaEnum enumeration(QMetaType type)
{
    if (!type.flags().testFlag(QMetaType::IsEnumeration) || type.metaObject() == nullptr)
        return {};
    const std::string_view name = type.name();
    const std::string_view unqualified = name.substr(name.rfind(':') + 1);
    return type.metaObject()->enumerator(type.metaObject()->indexOfEnumerator(unqualified.data()));
}

bool isRecord(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsGadget);
}

QJsonObject encodeRecord(const QVariant &record)
{
    QJsonObject object;
    const QMetaObject *fields = record.metaType().metaObject();
    for (int index = 0; index < fields->propertyCount(); ++index) {
        const QMetaProperty field = fields->property(index);
        if (field.isStored())
            object.insert(QLatin1String(field.name()), encode(field.readOnGadget(record.constData())));
    }
    return object;
}

QJsonArray encodeList(const QVariant &list)
{
    QJsonArray array;
    for (const QVariant &element : list.value<QSequentialIterable>())
        array.append(encode(element));
    return array;
}

QVariant decode(const QJsonValue &value, QMetaType type);

QVariant decodeRecord(const QJsonValue &value, QMetaType type)
{
    if (!value.isObject())
        return {};
    const QJsonObject object = value.toObject();
    const QMetaObject *fields = type.metaObject();
    QVariant record(type);
    for (int index = 0; index < fields->propertyCount(); ++index) {
        const QMetaProperty field = fields->property(index);
        if (!field.isStored())
            continue;
        const QVariant content = decode(object.value(QLatin1String(field.name())), field.metaType());
        if (!content.isValid() || !field.writeOnGadget(record.data(), content))
            return {};
    }
    return record;
}

QVariant decodeList(const QJsonValue &value, QMetaType type)
{
    if (!value.isArray())
        return {};
    QVariant list(type);
    auto elements = list.view<QSequentialIterable>();
    const QMetaType elementType = elements.metaContainer().valueMetaType();
    for (const auto item : value.toArray()) {
        const QVariant element = decode(item, elementType);
        if (!element.isValid())
            return {};
        elements.addValue(element);
    }
    return list;
}

QVariant decodeInteger(const QJsonValue &value)
{
    const qint64 number = value.toInteger(0);
    return number == value.toInteger(1) ? QVariant::fromValue(number) : QVariant();
}

QVariant decodeText(const QString &text, QMetaType type)
{
    const auto orInvalid = [](const auto &value) { return value ? QVariant::fromValue(*value) : QVariant(); };
    switch (type.id()) {
    case QMetaType::QString:
        return text;
    case QMetaType::QUuid:
        return orInvalid(uuidFromText(text));
    case QMetaType::QDateTime:
        return orInvalid(dateFromText(text));
    default:
        break;
    }
    const QMetaEnum cases = enumeration(type);
    bool known = false;
    const int number = cases.keyToValue(text.toUtf8().constData(), &known);
    if (!known || QLatin1String(cases.valueToKey(number)) != text)
        return {};
    return QVariant(type, &number);
}

QVariant decode(const QJsonValue &value, QMetaType type)
{
    switch (type.id()) {
    case QMetaType::Bool:
        return value.isBool() ? QVariant(value.toBool()) : QVariant();
    case QMetaType::LongLong:
        return decodeInteger(value);
    default:
        break;
    }
    if (isRecord(type))
        return decodeRecord(value, type);
    if (type.id() == QMetaType::QString || type.id() == QMetaType::QUuid ||
        type.id() == QMetaType::QDateTime || type.flags().testFlag(QMetaType::IsEnumeration))
        return value.isString() ? decodeText(value.toString(), type) : QVariant();
    return decodeList(value, type);
}

} // namespace

QJsonValue encode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QJsonValue::Null;
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QUuid:
        return uuidText(value.toUuid());
    case QMetaType::QDateTime:
        return dateText(value.toDateTime());
    case QMetaType::QVariant:
        return encode(value.value<QVariant>());
    default:
        break;
    }
    if (isRecord(value.metaType()))
        return encodeRecord(value);
    if (const QMetaEnum cases = enumeration(value.metaType()); cases.isValid())
        return QLatin1String(cases.valueToKey(*static_cast<const int *>(value.constData())));
    return encodeList(value);
}

QByteArray document(const QJsonValue &value)
{
    QByteArray document =
        value.isArray() ? QJsonDocument(value.toArray()).toJson() : QJsonDocument(value.toObject()).toJson();
    // Qt passes over a byte-order mark at the beginning of a string that it reads, unless it is escaped.
    return document.replace("\xEF\xBB\xBF", "\\ufeff");
}

QVariant decodeDocument(const QByteArray &document, QMetaType type)
{
    const QJsonDocument json = QJsonDocument::fromJson(document);
    return json.isObject() ? decodeRecord(json.object(), type) : QVariant();
}

} // namespace vornel::RecordJson

#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <concepts>
#include <optional>
#include <type_traits>

// What is stored of a record, written once for both ways. A specialisation has a function Each, which gives names and
// fields of a record to `take`:
// static void Each(auto& record, const auto& take) { take("Name", record.Name); }
template <typename tRecord>
struct cRecordFields;

namespace modRecordJson {

template <typename tValue>
concept cIsRecord = requires
{
    sizeof(cRecordFields<tValue>);
};

template <typename tValue>
concept cIsTime = std::same_as<tValue, QDate> || std::same_as<tValue, QDateTime>;

template <cIsTime tValue>
constexpr Qt::DateFormat timeForm = std::same_as<tValue, QDate> ? Qt::ISODate : Qt::ISODateWithMs;

template <typename tItem>
QJsonValue Written(const QList<tItem>& list);
template <typename tValue>
QJsonValue Written(const std::optional<tValue>& value);

template <typename tValue>
QJsonValue Written(const tValue& value)
{
    if constexpr (cIsRecord<tValue>) {
        QJsonObject json;
        cRecordFields<tValue>::Each(
            value, [&](const char* name, const auto& field) { json.insert(QLatin1StringView(name), Written(field)); });
        return json;
    } else if constexpr (std::is_enum_v<tValue>) {
        return static_cast<int>(value);
    } else if constexpr (cIsTime<tValue>) {
        return value.toString(timeForm<tValue>);
    } else if constexpr (std::same_as<tValue, QByteArray>) {
        return QString::fromLatin1(value.toBase64());
    } else {
        return value;
    }
}

template <typename tItem>
QJsonValue Written(const QList<tItem>& list)
{
    QJsonArray json;
    for (const tItem& item : list) {
        json.append(Written(item));
    }
    return json;
}

template <typename tValue>
QJsonValue Written(const std::optional<tValue>& value)
{
    return value ? Written(*value) : QJsonValue(QJsonValue::Undefined);
}

template <typename tItem>
void Read(const QJsonValue& json, QList<tItem>& list);
template <typename tValue>
void Read(const QJsonValue& json, std::optional<tValue>& value);

// What is missing keeps the value that it has.
template <typename tValue>
void Read(const QJsonValue& json, tValue& value)
{
    if constexpr (cIsRecord<tValue>) {
        const QJsonObject object = json.toObject();
        cRecordFields<tValue>::Each(
            value, [&](const char* name, auto& field) { Read(object.value(QLatin1StringView(name)), field); });
    } else if constexpr (std::is_enum_v<tValue>) {
        value = static_cast<tValue>(json.toInt(static_cast<int>(value)));
    } else if constexpr (cIsTime<tValue>) {
        value = json.isString() ? tValue::fromString(json.toString(), timeForm<tValue>) : value;
    } else if constexpr (std::same_as<tValue, QByteArray>) {
        value = json.isString() ? QByteArray::fromBase64(json.toString().toLatin1()) : value;
    } else if constexpr (std::same_as<tValue, QString>) {
        value = json.toString(value);
    } else if constexpr (std::same_as<tValue, bool>) {
        value = json.toBool(value);
    } else {
        value = static_cast<tValue>(json.toInteger(value));
    }
}

template <typename tItem>
void Read(const QJsonValue& json, QList<tItem>& list)
{
    const QJsonArray array = json.toArray();
    for (const auto& item : array) {
        Read(QJsonValue(item), list.emplaceBack());
    }
}

template <typename tValue>
void Read(const QJsonValue& json, std::optional<tValue>& value)
{
    if (json.isObject()) {
        Read(json, value.emplace());
    }
}

} // namespace modRecordJson

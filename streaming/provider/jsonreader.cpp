#include "provider/jsonreader.h"

#include <QJsonArray>
#include <QJsonValue>

#include <cmath>

bool JsonReader::text(const QJsonObject& object, const QString& key, QString* out)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined() || value.isNull()) {
        out->clear();
        return true;
    }
    if (!value.isString())
        return false;
    *out = value.toString();
    return true;
}

bool JsonReader::requiredText(const QJsonObject& object, const QString& key, QString* out)
{
    return text(object, key, out) && !out->isEmpty();
}

bool JsonReader::identifier(const QJsonObject& object, const QString& key, QString* out)
{
    const QJsonValue value = object.value(key);
    if (value.isDouble()) {
        const double number = value.toDouble();
        // Beyond 2^53 a double no longer holds every integer exactly.
        if (std::isfinite(number) && number == std::floor(number) && std::fabs(number) < 9007199254740992.0) {
            *out = QString::number(static_cast<qint64>(number));
            return true;
        }
        return false;
    }
    return requiredText(object, key, out);
}

bool JsonReader::objects(const QJsonObject& object, const QString& key, QList<QJsonObject>* out)
{
    out->clear();
    const QJsonValue value = object.value(key);
    if (!value.isArray())
        return false;
    const QJsonArray array = value.toArray();
    for (const QJsonValue& element : array) {
        if (!element.isObject()) {
            out->clear();
            return false;
        }
        out->append(element.toObject());
    }
    return true;
}

bool JsonReader::members(const QJsonObject& object, const QString& key, QList<QJsonObject>* out)
{
    out->clear();
    const QJsonValue value = object.value(key);
    if (value.isArray())
        return value.toArray().isEmpty();
    if (!value.isObject())
        return false;
    const QJsonObject map = value.toObject();
    for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
        if (!it.value().isObject()) {
            out->clear();
            return false;
        }
        out->append(it.value().toObject());
    }
    return true;
}

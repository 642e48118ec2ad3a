#include "stores/orderedjson.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

void appendValue(QByteArray& out, const QJsonValue& value, const QString& name,
                 const QHash<QString, QStringList>& keyOrder, int depth);

void appendObject(QByteArray& out, const QJsonObject& object, const QString& name,
                  const QHash<QString, QStringList>& keyOrder, int depth)
{
    if (object.isEmpty()) {
        out += "{}";
        return;
    }
    QStringList keys;
    for (const QString& key : keyOrder.value(name)) {
        if (object.contains(key))
            keys << key;
    }
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!keys.contains(it.key()))
            keys << it.key();
    }

    const QByteArray indent((depth + 1) * 4, ' ');
    out += "{\n";
    for (int i = 0; i < keys.size(); ++i) {
        out += indent;
        appendValue(out, keys.at(i), QString(), keyOrder, depth + 1);
        out += ": ";
        appendValue(out, object.value(keys.at(i)), keys.at(i), keyOrder, depth + 1);
        out += i + 1 < keys.size() ? ",\n" : "\n";
    }
    out += QByteArray(depth * 4, ' ');
    out += '}';
}

void appendValue(QByteArray& out, const QJsonValue& value, const QString& name,
                 const QHash<QString, QStringList>& keyOrder, int depth)
{
    if (value.isObject()) {
        appendObject(out, value.toObject(), name, keyOrder, depth);
        return;
    }
    if (value.isArray()) {
        // Arrays keep their own order; nested objects in them sort their keys.
        QByteArray text = QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
        out += text;
        return;
    }
    // A scalar: let QJsonDocument escape strings and print numbers.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    out += text.mid(1, text.size() - 2);
}

} // namespace

QByteArray OrderedJson::indented(const QJsonObject& object, const QHash<QString, QStringList>& keyOrder)
{
    QByteArray out;
    appendObject(out, object, QString(), keyOrder, 0);
    out += '\n';
    return out;
}

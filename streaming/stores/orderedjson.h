#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QStringList>

// Indented JSON text whose members come in a fixed order, so the files read the
// same way they always have. QJsonDocument would sort the keys.
class OrderedJson
{
public:
    // keyOrder maps an object's member name ("" for the top level) to the order
    // of its members; members it does not name follow in key order.
    static QByteArray indented(const QJsonObject& object, const QHash<QString, QStringList>& keyOrder);
};

#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

// Reads members of service replies without trusting their shape: each call
// gives false when the member is there but of the wrong kind.
class JsonReader
{
public:
    // Absent or null reads as empty text; a string as itself; anything else fails.
    static bool text(const QJsonObject& object, const QString& key, QString* out);
    // A string that is not empty.
    static bool requiredText(const QJsonObject& object, const QString& key, QString* out);
    // A non-empty string or an integral number, as text.
    static bool identifier(const QJsonObject& object, const QString& key, QString* out);
    // An array of objects (an empty array included).
    static bool objects(const QJsonObject& object, const QString& key, QList<QJsonObject>* out);
    // The values of an object that maps ids to objects; an empty array reads
    // as no members, since some services encode an empty map that way.
    static bool members(const QJsonObject& object, const QString& key, QList<QJsonObject>* out);
};

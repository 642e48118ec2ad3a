#include "jsonreader.h"

#include <QJsonDocument>
#include <QtTest>

// The readers every service reply goes through; "-" in an expected column means "refused".
class TestJsonReader : public QObject
{
    Q_OBJECT

private slots:
    void readers_data();
    void readers();
    void lists_data();
    void lists();
};

void TestJsonReader::readers_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("requiredText");
    QTest::addColumn<QString>("identifier");

    QTest::newRow("string") << QByteArray(R"({"v":"x7"})") << "x7" << "x7" << "x7";
    QTest::newRow("empty string") << QByteArray(R"({"v":""})") << "" << "-" << "-";
    QTest::newRow("absent") << QByteArray(R"({})") << "" << "-" << "-";
    QTest::newRow("null") << QByteArray(R"({"v":null})") << "" << "-" << "-";
    QTest::newRow("integer") << QByteArray(R"({"v":12345})") << "-" << "-" << "12345";
    QTest::newRow("negative") << QByteArray(R"({"v":-3})") << "-" << "-" << "-3";
    QTest::newRow("fraction") << QByteArray(R"({"v":1.5})") << "-" << "-" << "-";
    QTest::newRow("too large to be exact") << QByteArray(R"({"v":1e300})") << "-" << "-" << "-";
    QTest::newRow("bool") << QByteArray(R"({"v":true})") << "-" << "-" << "-";
    QTest::newRow("array") << QByteArray(R"({"v":["abc"]})") << "-" << "-" << "-";
    QTest::newRow("object") << QByteArray(R"({"v":{"v":"abc"}})") << "-" << "-" << "-";
}

void TestJsonReader::readers()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, text);
    QFETCH(QString, requiredText);
    QFETCH(QString, identifier);

    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto read = [&](bool (*reader)(const QJsonObject&, const QString&, QString*)) {
        QString out = QStringLiteral("before");
        return reader(object, QStringLiteral("v"), &out) ? out : QStringLiteral("-");
    };
    QCOMPARE(read(&JsonReader::text), text);
    QCOMPARE(read(&JsonReader::requiredText), requiredText);
    QCOMPARE(read(&JsonReader::identifier), identifier);
}

void TestJsonReader::lists_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("objects"); // how many read, -1: refused
    QTest::addColumn<int>("members");

    QTest::newRow("array of objects") << QByteArray(R"({"v":[{"a":1},{"a":2}]})") << 2 << -1;
    QTest::newRow("empty array") << QByteArray(R"({"v":[]})") << 0 << 0;
    QTest::newRow("map of objects") << QByteArray(R"({"v":{"1":{"a":1},"2":{"a":2},"3":{}}})") << -1 << 3;
    QTest::newRow("empty map") << QByteArray(R"({"v":{}})") << -1 << 0;
    QTest::newRow("array with a number") << QByteArray(R"({"v":[{"a":1},2]})") << -1 << -1;
    QTest::newRow("map with a string") << QByteArray(R"({"v":{"1":"x"}})") << -1 << -1;
    QTest::newRow("string") << QByteArray(R"({"v":"[]"})") << -1 << -1;
    QTest::newRow("absent") << QByteArray(R"({})") << -1 << -1;
}

void TestJsonReader::lists()
{
    QFETCH(QByteArray, json);
    QFETCH(int, objects);
    QFETCH(int, members);

    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const auto read = [&](bool (*reader)(const QJsonObject&, const QString&, QList<QJsonObject>*)) {
        QList<QJsonObject> out{QJsonObject()};
        // A refusal leaves no stale entry behind: -1, not less.
        return reader(object, QStringLiteral("v"), &out) ? out.size() : -1 - out.size();
    };
    QCOMPARE(read(&JsonReader::objects), objects);
    QCOMPARE(read(&JsonReader::members), members);
}

QTEST_MAIN(TestJsonReader)
#include "tst_jsonreader.moc"

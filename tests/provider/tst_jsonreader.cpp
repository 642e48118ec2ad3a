#include "jsonreader.h"

#include <QJsonDocument>
#include <QtTest>

class TestJsonReader : public QObject
{
    Q_OBJECT

private slots:
    void text_data();
    void text();
    void identifier_data();
    void identifier();
    void lists_data();
    void lists();
};

namespace {
QJsonObject parse(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}
} // namespace

void TestJsonReader::text_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<bool>("required");
    QTest::addColumn<QString>("value");

    QTest::newRow("string") << QByteArray(R"({"v":"abc"})") << true << true << "abc";
    QTest::newRow("empty string") << QByteArray(R"({"v":""})") << true << false << "";
    QTest::newRow("absent") << QByteArray(R"({})") << true << false << "";
    QTest::newRow("null") << QByteArray(R"({"v":null})") << true << false << "";
    QTest::newRow("number") << QByteArray(R"({"v":12})") << false << false << "";
    QTest::newRow("bool") << QByteArray(R"({"v":true})") << false << false << "";
    QTest::newRow("array") << QByteArray(R"({"v":["abc"]})") << false << false << "";
    QTest::newRow("object") << QByteArray(R"({"v":{"v":"abc"}})") << false << false << "";
}

void TestJsonReader::text()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, readable);
    QFETCH(bool, required);
    QFETCH(QString, value);

    QString out = QStringLiteral("before");
    QCOMPARE(JsonReader::text(parse(json), QStringLiteral("v"), &out), readable);
    if (readable)
        QCOMPARE(out, value);
    QCOMPARE(JsonReader::requiredText(parse(json), QStringLiteral("v"), &out), required);
}

void TestJsonReader::identifier_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QString>("value");

    QTest::newRow("string") << QByteArray(R"({"id":"x7"})") << true << "x7";
    QTest::newRow("integer") << QByteArray(R"({"id":12345})") << true << "12345";
    QTest::newRow("negative") << QByteArray(R"({"id":-3})") << true << "-3";
    QTest::newRow("fraction") << QByteArray(R"({"id":1.5})") << false << "";
    QTest::newRow("too large to be exact") << QByteArray(R"({"id":1e300})") << false << "";
    QTest::newRow("empty") << QByteArray(R"({"id":""})") << false << "";
    QTest::newRow("absent") << QByteArray(R"({})") << false << "";
    QTest::newRow("object") << QByteArray(R"({"id":{}})") << false << "";
}

void TestJsonReader::identifier()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, readable);
    QFETCH(QString, value);

    QString out;
    QCOMPARE(JsonReader::identifier(parse(json), QStringLiteral("id"), &out), readable);
    if (readable)
        QCOMPARE(out, value);
}

void TestJsonReader::lists_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("objects");
    QTest::addColumn<int>("members");

    // -1: not readable
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

    QList<QJsonObject> out{QJsonObject()};
    QCOMPARE(JsonReader::objects(parse(json), QStringLiteral("v"), &out), objects >= 0);
    QCOMPARE(out.size(), qMax(objects, 0));
    out = {QJsonObject()};
    QCOMPARE(JsonReader::members(parse(json), QStringLiteral("v"), &out), members >= 0);
    QCOMPARE(out.size(), qMax(members, 0));
}

QTEST_MAIN(TestJsonReader)
#include "tst_jsonreader.moc"

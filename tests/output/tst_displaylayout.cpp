#include "output/displaylayout.h"

#include <QtTest>

// The layout name helpers, one table: the call, its arguments and its answer.
class TestDisplayLayout : public QObject
{
    Q_OBJECT

private slots:
    void helpers_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QVariant>("expected");
        auto name = [](const char* tag, int type, int index, bool withName, bool singles, bool always, const char* text) {
            QTest::newRow(tag) << "name" << QVariantList{type, index, withName, singles, always} << QVariant(text);
        };
        name("cam numbered", 1, 2, true, true, false, "CAM 3");
        name("single not numbered", 7, 0, true, true, false, "PROGRAM");
        name("single numbered always", 7, 0, true, false, true, "PROGRAM 1");
        name("negative type", -1, 0, true, true, true, "");
        name("no index", 1, -1, true, true, true, "CAM");
        name("number only", 1, 2, false, true, false, "3");
        name("no numbering", 1, 2, true, false, false, "CAM");
        name("name with space", 16, 0, true, true, false, "AUDIO MIXER 1");
        name("system is single", 14, 3, true, true, false, "SYSTEM");
        auto parse = [](const char* tag, const char* text, int type, int index) {
            QTest::newRow(qPrintable(QStringLiteral("type of ") + tag)) << "type" << QVariantList{text} << QVariant(type);
            QTest::newRow(qPrintable(QStringLiteral("index of ") + tag)) << "index" << QVariantList{text} << QVariant(index);
        };
        parse("CAM 3", "CAM 3", 1, 2);
        parse("PROGRAM", "PROGRAM", 7, -1);
        parse("PROGRAM(CLEAN)", "PROGRAM(CLEAN)", 8, -1);
        parse("AUDIO MIXER", "AUDIO MIXER", 16, -1);
        parse("M/E 2", "M/E 2", 4, 1);
        parse("BUS_A", "BUS_A", 17, -1);
        parse("VIDEO HUB 2", "VIDEO HUB 2", -1, 1); // three parts: looked up whole
        parse("spaced", "  CAM   12 ", -1, 11);     // the type keeps empty parts
        parse("CAM x", "CAM x", -1, -1);
        parse("CAM -1", "CAM -1", -1, -1);
        parse("trailing letters", "CAM 3x", 1, 2);
        parse("too large", "CAM 99999999999", 1, -1);
        parse("unknown", "CAMERA", -1, -1);
    }
    void helpers()
    {
        QFETCH(QString, call);
        QFETCH(QVariantList, args);
        QFETCH(QVariant, expected);
        if (call == "name")
            QCOMPARE(DisplayLayoutName(args[0].toInt(), args[1].toInt(), args[2].toBool(), args[3].toBool(),
                                       args[4].toBool()),
                     expected.toString());
        else if (call == "type")
            QCOMPARE(layoutTypeFromString(args[0].toString()), expected.toInt());
        else
            QCOMPARE(layoutIndexFromString(args[0].toString()), expected.toInt());
    }
};

QTEST_APPLESS_MAIN(TestDisplayLayout)
#include "tst_displaylayout.moc"

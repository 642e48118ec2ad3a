#include "engine/quillonengine.h"

#include <QtTest>

namespace {

CodecPreset preset(const QString& name, const QString& id, const QString& codec = "H.264")
{
    CodecPreset p;
    p.setName(name);
    p.setId(id);
    p.videoCodec().codec = codec;
    return p;
}

struct Step {
    QString name;
    QString id;
    bool on;
};

} // namespace

Q_DECLARE_METATYPE(QList<Step>)

class tst_QuillonEngine : public QObject
{
    Q_OBJECT

private slots:
    void init() { QuillonEngine::clearEncodingCalls(); }

    void recordsEveryCallWithACopyOfThePreset()
    {
        CodecPreset p = preset("Program", "rec-1", "Apple ProRes");
        QSignalSpy requested(&QuillonEngine::instance(), &QuillonEngine::encodingRequested);
        QVERIFY(QuillonEngine::encoding(&p, true));
        p.videoCodec().codec = "changed later";
        QVERIFY(QuillonEngine::encoding(&p, false));

        const QList<QuillonEngine::EncodingCall> calls = QuillonEngine::encodingCalls();
        QCOMPARE(calls.size(), 2);
        QCOMPARE(calls.at(0).preset.videoCodec().codec, QStringLiteral("Apple ProRes"));
        QVERIFY(calls.at(0).on && !calls.at(1).on);
        QCOMPARE(calls.at(1).preset.videoCodec().codec, QStringLiteral("changed later"));
        QCOMPARE(requested.size(), 2);
        QCOMPARE(requested.at(0).at(0).value<CodecPreset>().name(), QStringLiteral("Program"));
        QCOMPARE(requested.at(0).at(1).toBool(), true);

        // A null preset is refused and not recorded.
        QVERIFY(!QuillonEngine::encoding(nullptr, true));
        QCOMPARE(QuillonEngine::encodingCalls().size(), 2);
        QCOMPARE(requested.size(), 2);
        QVERIFY(!QuillonEngine::audioDevices().isEmpty());
    }

    void runningList_data()
    {
        QTest::addColumn<QList<Step>>("steps");
        QTest::addColumn<QStringList>("running");

        QTest::newRow("start then stop") << QList<Step>{{"A", "1", true}, {"A", "1", false}} << QStringList();
        QTest::newRow("stop of something not running")
            << QList<Step>{{"A", "1", true}, {"B", "2", false}} << QStringList{"A"};
        QTest::newRow("restart by id replaces the entry and moves it last")
            << QList<Step>{{"A", "1", true}, {"B", "2", true}, {"A renamed", "1", true}}
            << QStringList{"B", "A renamed"};
        QTest::newRow("same name, other id, are two encoders")
            << QList<Step>{{"Program", "1", true}, {"Program", "2", true}} << QStringList{"Program", "Program"};
        QTest::newRow("without id the name identifies")
            << QList<Step>{{"A", "", true}, {"B", "", true}, {"A", "", false}} << QStringList{"B"};
    }
    void runningList()
    {
        QFETCH(QList<Step>, steps);
        QFETCH(QStringList, running);
        for (const Step& step : steps) {
            CodecPreset p = preset(step.name, step.id);
            QVERIFY(QuillonEngine::encoding(&p, step.on));
        }
        QStringList names;
        for (const CodecPreset& p : QuillonEngine::runningEncoders())
            names.append(p.name());
        QCOMPARE(names, running);
        QCOMPARE(QuillonEngine::encodingCalls().size(), steps.size());
        QuillonEngine::clearEncodingCalls();
        QVERIFY(QuillonEngine::runningEncoders().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_QuillonEngine)
#include "tst_quillonengine.moc"

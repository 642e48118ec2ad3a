#include "engine/quillonengine.h"

#include <QtTest>

namespace {

CodecPreset preset(const QString& name, const QString& id)
{
    CodecPreset p;
    p.setName(name);
    p.setId(id);
    return p;
}

} // namespace

class tst_QuillonEngine : public QObject
{
    Q_OBJECT

private slots:
    void init() { QuillonEngine::clearEncodingCalls(); }

    void runningEncodersAreKeptByIdOrName()
    {
        const auto encode = [](const QString& name, const QString& id, bool on) {
            CodecPreset p = preset(name, id);
            QVERIFY(QuillonEngine::encoding(&p, on));
        };
        encode("A", "1", true);
        encode("B", "2", true);
        encode("A renamed", "1", true); // a restart by id replaces the entry and moves it last
        encode("Program", "3", true);
        encode("Program", "4", true);   // same name, other id: two encoders
        encode("C", "", true);
        encode("C", "", false);         // without id the name identifies
        encode("D", "5", false);        // a stop of something not running
        QStringList names;
        for (const CodecPreset& p : QuillonEngine::runningEncoders())
            names.append(p.name());
        QCOMPARE(names, (QStringList{"B", "A renamed", "Program", "Program"}));
        QCOMPARE(QuillonEngine::encodingCalls().size(), 8);
        QVERIFY(!QuillonEngine::encoding(nullptr, true)); // refused and not recorded
        QuillonEngine::clearEncodingCalls();
        QVERIFY(QuillonEngine::encodingCalls().isEmpty() && QuillonEngine::runningEncoders().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_QuillonEngine)
#include "tst_quillonengine.moc"

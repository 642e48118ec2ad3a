#include "interface/memoryoutputinterface.h"
#include "recording/imagesetup.h"
#include "records/licensemodel.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace TestKit;

namespace {

QJsonObject grab(const QString& name, const QJsonValue& format = "png", const QJsonValue& source = 2)
{
    return {{"Source", source}, {"PresetName", name}, {"ContainerName", format},
            {"Path", "/shots"},  {"FileTag", "%P"},   {"MediaToBin", "STILL 2"}};
}

} // namespace

// The grab presets as an operator keeps them: added under the grab limit with unique names,
// removed after a question, and stored under "GRAB" whatever a hand edit left there.
class TestImageSetupDialog : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<ImageSetup> m_dialog;

    void open(const QJsonObject& settings, int grabLimit = 8)
    {
        m_dialog.reset();
        LicenseModel license;
        license.setMaxGrab(grabLimit);
        m_stores = std::make_unique<TempStores>(license);
        m_host = std::make_unique<MemoryOutputInterface>(settings);
        m_dialog = std::make_unique<ImageSetup>(nullptr, m_host.get());
        m_dialog->reloadPresets();
    }
    template <typename T = QComboBox>
    T* control(const char* name) const { return TestKit::control<T>(m_dialog.get(), name); }
    void add(const QString& name)
    {
        control<QLineEdit>("presetName")->setText(name);
        control<QToolButton>("addPreset")->click();
    }
    QStringList stored() const
    {
        QStringList rows;
        for (const QJsonValue& value : m_host->settings().value("GRAB").toArray()) {
            const QJsonObject o = value.toObject();
            rows.append(QStringLiteral("%1 %2 %3 %4 %5 %6")
                            .arg(o.value("PresetName").toString(), o.value("ContainerName").toString())
                            .arg(o.value("Source").toInt())
                            .arg(o.value("Path").toString(), o.value("FileTag").toString(),
                                 o.value("MediaToBin").toString()));
        }
        return rows;
    }

private slots:
    void initTestCase() { initDialogTest("tst_imagesetupdialog"); }
    void init() { MessageBox::clear(); }
    void cleanup() { m_dialog.reset(); }

    void addUnderTheLimit()
    {
        open({}, 3);
        QCOMPARE(control<QLabel>("maxGrab")->text(), QStringLiteral("Max Grab: 3"));
        QCOMPARE(comboTexts(control("containerList")), (QStringList{"jpg", "png", "bmp", "tiff"}));
        QCOMPARE(comboTexts(control("sourceList")), (QStringList{"PGM", "PGM(Clean)", "PVW"}));
        QCOMPARE(comboTexts(control("mediaToBin")), (QStringList{"None", "STILL 1", "STILL 2"}));
        control<QLineEdit>("folder")->setText("/shots");
        QVERIFY(choose(control("containerList"), "tiff"));
        QVERIFY(choose(control("sourceList"), "PVW"));
        add("Snap");
        add("Snap");
        QVERIFY(choose(control("sourceList"), "PGM(Clean)"));
        add("");
        QVERIFY(MessageBox::shown().isEmpty());
        const QString tag = "%P %Y-%M-%D %h-%m-%s %S";
        QCOMPARE(stored(), (QStringList{"Snap tiff 2 /shots " + tag + " None", "Snap 2 tiff 2 /shots " + tag + " None",
                                        "Untitled tiff 1 /shots " + tag + " None"}));
        // At the limit: the warning, and nothing added.
        add("Four");
        QCOMPARE(MessageBox::shown().size(), 1);
        QCOMPARE(MessageBox::lastShown().title + ": " + MessageBox::lastShown().text,
                 QStringLiteral("Preset: Check the maximum number of grab."));
        QCOMPARE(m_dialog->presets().size(), 3);
        // Choosing a row shows its preset; removing it asks first, and "No" keeps it.
        control<QListWidget>("presetList")->setCurrentRow(0);
        QCOMPARE(control("sourceList")->currentText(), QStringLiteral("PVW"));
        MessageBox::setNextAnswer(QMessageBox::No);
        control<QToolButton>("removePreset")->click();
        QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
        QCOMPARE(m_dialog->presets().size(), 3);
    }

    // A stored list longer than the limit loads whole; entries a hand edit broke get the first
    // format or source, or are skipped when they are no preset at all; other keys stay.
    void storedGrabs()
    {
        const QJsonArray recording{QJsonObject{{"PresetName", "Keep me"}}};
        open({{"GRAB", QJsonArray{grab("Odd", "exr"), "text", grab("Minus", "bmp", -1), grab("Far", "jpg", 7),
                                  grab("Fine")}},
              {"RECORDING", recording}},
             2);
        QCOMPARE(control<QListWidget>("presetList")->count(), 4);
        add("New");
        control<QListWidget>("presetList")->setCurrentRow(3);
        MessageBox::setNextAnswer(QMessageBox::Yes);
        control<QToolButton>("removePreset")->click();
        QCOMPARE(stored(), (QStringList{"Odd jpg 2 /shots %P STILL 2", "Minus bmp 0 /shots %P STILL 2",
                                        "Far jpg 0 /shots %P STILL 2"}));
        QCOMPARE(m_host->settings().value("RECORDING").toArray(), recording);
    }
};

QTEST_MAIN(TestImageSetupDialog)
#include "tst_imagesetupdialog.moc"

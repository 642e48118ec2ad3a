#include <QtTest>

// Every text shown by the library, the host and the console is translated in every
// shipped language. lupdate refreshes a copy of each .ts file from today's sources first,
// so a text added without refreshing and translating the .ts files fails here, named.
class tst_Translations : public QObject
{
    Q_OBJECT

    struct Message {
        QString context;
        QString source;
        QStringList translations; // one, or one per plural form
        bool unfinished = false;
    };

    static QList<Message> read(const QString& path)
    {
        QList<Message> messages;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return messages;
        QXmlStreamReader xml(&file);
        QString context;
        Message message;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QStringRef name = xml.name();
            if (name == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (name == QLatin1String("message")) {
                message = Message{context, {}, {}, false};
            } else if (name == QLatin1String("source")) {
                message.source = xml.readElementText();
            } else if (name == QLatin1String("translation")) {
                message.unfinished = xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
                // Text, or one <numerusform> per plural form.
                QString text;
                while (!xml.atEnd() && !(xml.readNext() == QXmlStreamReader::EndElement
                                         && xml.name() == QLatin1String("translation"))) {
                    if (xml.isCharacters())
                        text += xml.text();
                    else if (xml.isStartElement() && xml.name() == QLatin1String("numerusform"))
                        message.translations.append(xml.readElementText());
                }
                if (message.translations.isEmpty())
                    message.translations.append(text);
                messages.append(message);
            }
        }
        return messages;
    }

    // "%1" ... "%99" and "%n", sorted: a translation uses each argument the source uses.
    static QStringList placeholders(const QString& text)
    {
        static const QRegularExpression pattern(QStringLiteral("%(?:L?\\d{1,2}|n)"));
        QStringList found;
        for (auto it = pattern.globalMatch(text); it.hasNext();)
            found.append(it.next().captured());
        found.sort();
        found.removeDuplicates();
        return found;
    }

    static bool hasShortcut(const QString& text)
    {
        return QString(text).remove(QStringLiteral("&&")).contains(QRegularExpression(QStringLiteral("&\\w")));
    }

private slots:
    void initTestCase()
    {
        if (!QFileInfo(QStringLiteral(LUPDATE_EXECUTABLE)).isExecutable())
            QSKIP("lupdate is missing (Debian package qttools5-dev-tools)");
    }

    void everyTextTranslated_data()
    {
        QTest::addColumn<QString>("tsFile");
        QTest::addColumn<QString>("sourceList");
        const QDir sources(QStringLiteral(TRANSLATIONS_SOURCE_DIR));
        const QStringList files = sources.entryList({QStringLiteral("*_*.ts")}, QDir::Files, QDir::Name);
        QVERIFY(files.size() >= 4); // libstreaming and quillon, German and French
        for (const QString& file : files) {
            const QString component = file.section(QLatin1Char('_'), 0, -2);
            QTest::newRow(qPrintable(file)) << sources.filePath(file)
                                            << QStringLiteral(TRANSLATIONS_LIST_DIR "/%1.lst").arg(component);
        }
    }
    void everyTextTranslated()
    {
        QFETCH(QString, tsFile);
        QFETCH(QString, sourceList);
        QVERIFY2(QFile::exists(sourceList), qPrintable(sourceList + " is not made by translations/CMakeLists.txt"));
        QTemporaryDir dir;
        const QString copy = dir.filePath(QFileInfo(tsFile).fileName());
        QVERIFY(QFile::copy(tsFile, copy));
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);

        QProcess lupdate;
        lupdate.start(QStringLiteral(LUPDATE_EXECUTABLE),
                      {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"), QStringLiteral("-locations"),
                       QStringLiteral("none"), QLatin1Char('@') + sourceList, QStringLiteral("-ts"), copy});
        QVERIFY(lupdate.waitForFinished(60000));
        QVERIFY2(lupdate.exitCode() == 0, lupdate.readAllStandardError().constData());

        const QList<Message> messages = read(copy);
        QVERIFY(!messages.isEmpty());
        QStringList problems;
        for (const Message& m : messages) {
            const QString where = QStringLiteral("%1 \"%2\"").arg(m.context, m.source);
            bool empty = false;
            for (const QString& text : m.translations) {
                empty = empty || text.isEmpty();
                if (!text.isEmpty() && placeholders(text) != placeholders(m.source))
                    problems.append(where + QStringLiteral(": the arguments differ in \"%1\"").arg(text));
                if (!text.isEmpty() && hasShortcut(m.source) != hasShortcut(text))
                    problems.append(where + QStringLiteral(": the & shortcut differs in \"%1\"").arg(text));
            }
            if (m.unfinished || empty)
                problems.append(where + QStringLiteral(": not translated"));
        }
        QVERIFY2(problems.isEmpty(),
                 qPrintable(QFileInfo(tsFile).fileName()
                            + QStringLiteral(" (run `cmake --build build --target lupdate`, then translate):\n")
                            + problems.join(QLatin1Char('\n'))));
    }
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_translations.moc"

#include "Deadline.h"
#include "IniCodec.h"
#include "SettingsFolder.h"
#include "SettingsState.h"

#include <stdexcept>

/// What is kept, changed and given up of a settings file.
class tst_ZelSettingsFile : public SettingsFolder
{
    Q_OBJECT

private:
    /// A change that sets a value of the shared settings, and then does not succeed.
    bool giveUp(QSettings& settings)
    {
        const auto change = [&](QSettings&, QString&) {
            settings.setValue("page/a", 3);
            return false;
        };
        return ZelSettingsFile::Write(settings, change, error);
    }

private Q_SLOTS:
    void changesThatFail()
    {
        store(m_path, Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto throws = [&](QSettings& changed, QString&) -> bool {
            for (QSettings* one : {&changed, settings.get()})
                one->setValue("new/key", 1);
            throw std::runtime_error("");
        };
        try {
            ZelSettingsFile::Write(*settings, throws, error);
            QFAIL("the exception is lost");
        } catch (const std::runtime_error&) {
            QVERIFY(contentOf(m_path) == Foreign && files("*").size() == 1);
            QVERIFY(!settings->contains("new/key") && write(*settings, {}) &&
                    !contentOf(m_path).contains("[new]"));
        }
        const auto nested = [&](QSettings& changed, QString& text) {
            changed.setValue("new/key", 1);
            return write(*settings, {{"inner/key", 2}}) || (text = error).isNull();
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, nested, error) && error.contains("being written already"));
        settings->beginGroup("Foreign");
        QVERIFY(!write(*settings, {{"list", "none"}}) && error.contains("a group of it is open"));
        settings->endGroup();
        // Nothing is left that a later write would take along.
        const auto shared = [&](QSettings&, QString&) {
            settings->setValue("Foreign/list", "none");
            settings->setValue("new/key", 1);
            settings->beginGroup("new");
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, shared, error));
        settings->sync();
        QVERIFY(holds() && !contentOf(m_path).contains("[new]") && settings->group().isEmpty());
        QVERIFY(apply(m_path));
        // What cannot be read is not written either.
        settings->setValue("new/key", 2);
        QVERIFY(QFile::remove(m_path) && QDir().mkdir(m_path));
        QVERIFY(!ZelSettingsFile::ReadAgain(*settings, error) && error.startsWith("Could not read the"));
        QVERIFY(!ZelSettingsFile::IsUsable(m_path, error = "") && error.startsWith("Could not read the"));
        QVERIFY(!ZelSettingsFile::Repair(*settings, error = "") && error.startsWith("Could not read the"));
        QVERIFY(QDir().rmdir(m_path));
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QVERIFY(!QFile::exists(m_path));
    }

    void changesOfTheSharedSettings()
    {
        Deadline deadline(300); // The time of a change does not count.
        QVERIFY(
            deadline.pauseFor([&] { return QTest::qWaitFor([&] { return deadline.remaining() == 0; }); }));
        QVERIFY(deadline.remaining() > 0);
        store(m_path, Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto mixed = [&](QSettings& changed, QString&) {
            changed.setValue("own/key", 1);
            settings->setValue("page/key", 2);
            settings->sync(); // As many a page does.
            QSettings other("other.ini", QSettings::IniFormat);
            return &ZelSettingsFile::Current(*settings) == &changed &&
                   &ZelSettingsFile::Current(other) == &other && ZelSettingsFile::ReadAgain(*settings, error);
        };
        QVERIFY(ZelSettingsFile::Write(*settings, mixed, error) && !hasPending(*settings));
        QVERIFY(holds({"[own]\nkey=1\n", "[page]\nkey=2\n"}));
        QCOMPARE(files("*").join(" "), QString("Settings.ini"));
        // Nothing is pending: what another program writes stays.
        const uint time = QFileInfo(m_path).lastModified().toTime_t();
        QVERIFY(change(m_path, {{"page/key", 3}}) && QFileInfo(m_path).lastModified().toTime_t() > time);
        settings->sync();
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QVERIFY(contentOf(m_path).contains("[page]\nkey=3\n") && settings->value("page/key").toInt() == 3);
        // What was pending before is written, but not over the change, nor over what others have written.
        int host = 0;
        for (const QByteArray general : {"[page]\nkey=4\n", "[page]\nkey=5\n", "no value\n"}) {
            store(m_path, general + "[own]\nkey=9\n" + Foreign);
            settings->setValue("page/key", 4);
            settings->setValue("host/key", ++host);
            QVERIFY(write(*settings, {{"page/key", 6}}));
            settings->sync();
            QVERIFY(holds(
                {"[own]\nkey=9\n", "[page]\nkey=6\n", "[host]\nkey=" + QByteArray::number(host) + '\n'}));
        }
        // A change that gives up takes nothing along, not even of a group with the name of its key.
        settings->setValue("host", "group");
        const auto givesUp = [&](QSettings&, QString&) {
            settings->setValue("Foreign", 1);
            settings->setValue("page/key", 7);
            store(m_path, contentOf(m_path) + "[late]\nkey=1\n");
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error));
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error));
        QVERIFY(holds({"[late]\nkey=1\n", "host=group\n", "[page]\nkey=6\n"}));
        const auto locked = [&](QSettings&, QString&) {
            settings->setValue("page/key", 7);
            return QDir().mkdir(m_path + ".lock");
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, locked, error) && error.contains(".lock\" is in the way"));
        // Not by QSettings, which in Qt 4 writes what others of the process hold, in another encoding.
        QVERIFY(QDir().rmdir(m_path + ".lock"));
        store(m_path, contentOf(m_path).replace("[host]\nkey=3\n", "[host]\nkey=99\n"));
        QVERIFY(write(*settings, {{"page/key", 8}}) && !hasPending(*settings));
        settings->sync();
        QVERIFY(holds({"[page]\nkey=8\n", "[host]\nkey=99\n"}));
    }

    void changeOfBothIsMergedWithThatOfOthers()
    {
        store(m_path, "[page]\na=1\nb=1\n[gone]\nkey=1\n" + Foreign);
        auto settings = ZelSettingsFile::Open(m_path);
        store(m_path, "[page]\na=1\nb=newer\n[gone]\nkey=1\n" + Foreign);
        settings->setValue("page/a", 2);
        const auto leavesGroup = [&](QSettings& copy, QString&) {
            settings->remove("gone");
            for (QSettings* one : {&copy, settings.get()})
                one->beginGroup("page");
            return true;
        };
        QVERIFY(ZelSettingsFile::Write(*settings, leavesGroup, error));
        QVERIFY(holds({"[page]\na=2\nb=newer\n"}) && !contentOf(m_path).contains("[gone]"));
        QVERIFY(!giveUp(*settings));
        settings->setValue("page/c", 1);
        QVERIFY(hasPending(*settings) && hasPending(*settings) && write(*settings, {}));
        QVERIFY(holds({"[page]\na=2\nb=newer\nc=1\n"}));
        store(m_path, "");
        QVERIFY(!giveUp(*settings) && write(*settings, {{"own/key", 1}}));
        QVERIFY(holds({"a=2"}));
        QVERIFY(!giveUp(*settings));
        store(m_path, "[page]\na=latest\n");
        settings.reset();
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=latest\n"));
    }

    void pendingValuesAreWrittenAtTheEnd()
    {
        store(m_path, "[page]\na=1\n");
        auto settings = ZelSettingsFile::Open(m_path);
        settings->setValue("page/b", 1);
        QVERIFY(!giveUp(*settings));
        store(m_path, "[page]\na=newest\n");
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=newest\n"));
        settings->beginGroup("page");
        settings.reset();
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=newest\nb=1\n"));
        settings = ZelSettingsFile::Open(m_path);
        settings->setValue("page/b", 2);
        settings->sync(); // There is still an event to write it.
        store(m_path, "[page]\nb=latest\n");
        settings.reset();
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=latest\n"));
    }

    void clearedFileIsFilledAgainByOthers()
    {
        store(m_path, "[page]\nb=1\n");
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto clear = [](QSettings& copy, QString&) {
            copy.clear();
            return true;
        };
        QVERIFY(ZelSettingsFile::Write(*settings, clear, error) && contentOf(m_path).isEmpty());
        store(m_path, "[page]\nb=again\n");
        settings->setValue("page/c", 1);
        QVERIFY(write(*settings, {}));
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=again\nc=1\n"));
    }

    void settingsThatAHostHasOpened()
    {
        store(m_path, "[page]\nb=1\n");
        QSettings host(m_path, QSettings::IniFormat);
        store(m_path, contentOf(m_path) + Foreign);
        host.setValue("host/key", 1);
        host.setValue("page/c", 2);
        QVERIFY(write(host, {}) && holds({"[host]", "b=1\nc=2\n"}));
        store(m_path, "[page]\nb=last\n"); // What others have removed does not come back.
        QVERIFY(write(host, {{"page/b", "mine"}}));
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=mine\n"));
    }

    void checksOfARepair()
    {
        static bool isMine, isRefused; // It stays registered.
        isMine = true;
        const auto check = [](QSettings& settings, QString& text) {
            if (isMine)
                settings.setValue("checked/key", 1);
            text = isRefused ? "refused" : "";
            return !isRefused;
        };
        ZelSettingsRegistry::RegisterEndCheckFunction(check);
        const auto settings = ZelSettingsFile::Open(m_path);
        QVERIFY(ZelSettingsFile::Repair(*settings, error) &&
                contentOf(m_path).contains("[checked]\nkey=1\n"));
        store(m_path, "junk\n" + contentOf(m_path));
        settings->setValue("checked/key", 2);
        QVERIFY2(ZelSettingsFile::ReadAgain(*settings, error), qPrintable(error));
        QVERIFY2(copies().size() == 1, contentOf(m_path));
        QVERIFY(contentOf(m_path).contains("[checked]\nkey=2\n"));
        isMine = false;
        isRefused = true;
        QVERIFY(!validate(m_path) && error == "refused");
        isRefused = false;
        // What another program has written while the values are checked stays.
        ZelSettingsRegistry::RegisterSetting("late", "1",
                                             [](const QString&, const QString&, QString&, QString&) {
                                                 if (contentOf("Settings.ini").contains("cacheSize=1\n"))
                                                     store("Settings.ini", "[DBCache]\ncacheSize=8888\n");
                                                 return true;
                                             });
        store(m_path, "[DBCache]\ncacheSize=1\n");
        QVERIFY(validate(m_path) && contentOf(m_path).contains("cacheSize=8888\n"));
        // A missing key with the name of a group, and a default that its validator refuses without a reason.
        ZelSettingsRegistry::RegisterSetting("Foreign", "text", &ZelSettingsValidators::noOp);
        store(m_path, Foreign);
        QVERIFY(validate(m_path) && holds());
        ZelSettingsRegistry::RegisterSetting("bad", "1/2",
                                             &ZelSettingsValidators::ensureSimplificationRatios);
        error.clear();
        QVERIFY(!validate(m_path) && error.contains("not valid"));
    }

    void copyOfWhatIsGivenUp_data()
    {
        const QByteArray version2("[General]\nsettingsVersion=2\n");
        const std::tuple<const char*, Operation, QByteArray, int> rows[] = {
            {"open group", &apply, version2 + "[open\n", 1},
            {"key without a name", &validate, "=1\n[open\n", 1},
            {"list in place of a number", &validate, version2 + "[DBCache]\ncacheSize=1, 2\n", 1},
            {"comment", &apply, "; mine\n" + version2, 1},
            {"list of another", &validate, version2 + "own=1, 2\n", 0},
            {"keys that differ in case", &apply, version2 + "Engine=1\nENGINE=2\n", SettingsIgnoreCase},
            {"key beyond ASCII", &apply, version2 + "gr\303\266\303\237e=5\n", SettingsIgnoreCase},
            {"no character within a plane", &apply, version2 + "own=\357\267\220\n", 1},
            {"tab in a list", &apply, version2 + "own=text\\t , b\n", SettingsDropBlanks},
            {"quoted tab", &validate, version2 + "own=\"text\\t\"\n", SettingsDropBlanks},
            {"escaped blank", &apply, version2 + "own=text\\x20\n", SettingsDropBlanks},
            {"too old, with a comment", &migrate, "[General]\nsettingsVersion=0\n; mine\n", 1},
            {"too old", &migrate, "[General]\nengine=software\n", 1},
            {"older version", &migrate, "[General]\nsettingsVersion=1\n", 0},
            {"value that is not valid", &validate, "[DBCache]\ncacheSize=1\n", 0},
            {"nothing", &migrate, "", 0}};
        addRows({"operation", "content", "kept"}, rows);
    }

    void copyOfWhatIsGivenUp()
    {
        QFETCH(Operation, operation);
        QFETCH(QByteArray, content);
        QFETCH(int, kept);
        store(m_path, content);
        QVERIFY(operation(m_path) && contentOf(m_path) != content);
        for (const Operation once : {&validate, &apply}) {
            QCOMPARE(copies().size(), kept);
            QVERIFY(kept == 0 || contentOf(copies().first()) == content);
            QVERIFY(once(m_path));
        }
    }

    void nothingToWrite()
    {
        for (const char* version : {"2", "7", "2147483648", "4294967297", "\" +99999999999999999999 \""}) {
            const QByteArray content = QByteArray("[General]\nsettingsVersion=") + version + "\n; note\n";
            store(m_path, content);
            setTime(m_path, stampOf(m_path).time - 3600000);
            const QDateTime time = QFileInfo(m_path).lastModified();
            QVERIFY(migrate(m_path) && change(m_path, {}));
            QVERIFY(contentOf(m_path) == content && QFileInfo(m_path).lastModified() == time);
        }
        QVERIFY(QFile::remove(m_path) && migrate(m_path) && !QFile::exists(m_path));
        const QByteArray lists = QByteArray("\\0\\0\\0\\x9\\0\\0\\0\\x1").repeated(50000);
        store(m_path, "x=\"@Variant(" + lists + ")\"\n"); // To decode it would end the process.
        QVERIFY(ZelSettingsFile::Open(m_path) != nullptr);
    }

    void everyCharacterIsKept()
    {
        const QByteArray group("[mine]\nsmile=\360\237\230\200 x\n");
        for (const Operation operation : {&validate, &apply, &migrate}) {
            store(m_path, "\357\273\277[General]\nsettingsVersion=1\n\n" + group);
            QVERIFY(operation(m_path) && contentOf(m_path).contains(group));
        }
        const QString text = QString::fromUtf8("\360\237\231\202\360\240\256\267f, \"\303\274\"; \n\t\\=");
        const QString mark(QChar(QChar::ByteOrderMark));
        const QStringList list = {text, text, QString(1, QChar())};
        QVERIFY(change(m_path, {{"list", list}, {"mark", mark}, {"third", QVariant(1 / 3.F)}}));
        const auto shared = ZelSettingsFile::Open(m_path); // QSettings would serialise a float.
        shared->setValue("half", QVariant(0.5F));
        QVERIFY2(write(*shared, {}), qPrintable(error));
        QVERIFY2(contentOf(m_path).contains("\nhalf=0.5\n"), contentOf(m_path));
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("third").toFloat(), 1 / 3.F);
        QVERIFY(change(m_path, {{"sure", "yes"}}) && change(m_path, {{"sure", true}}));
        QVERIFY(contentOf(m_path).contains("\nsure=true\n"));
        shared->setValue("half", QVariant(true));
        QVERIFY(write(*shared, {}) && contentOf(m_path).contains("\nhalf=true\n"));
        for (const QVariant& lost : {QVariant(QStringList({text.left(1), "b"})), QVariant(QDate(2000, 1, 1))})
            QVERIFY(!change(m_path, {{"lost", lost}}) && error.contains("not all values"));
        // Under other names, because QSettings remembers what it has read; at last with Qt's own codec.
        for (const bool own : {true, false}) {
            const QString path = m_folder.filePath(own ? "own" : "other");
            QVERIFY(QFile::copy(m_path, path));
            const auto copy = ZelSettingsFile::Open(path);
            if (!own)
                copy->setIniCodec("UTF-8");
            QCOMPARE(copy->value("list").toStringList(), list);
            QVERIFY(!own || copy->value("mark").toString() == mark);
        }
        const auto settings = ZelSettingsFile::Open(m_path);
        store(m_path, Utf8Mark + contentOf(m_path));
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error));
        settings->setValue("host", text);
        settings->sync(); // QSettings writes it.
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("host").toString(), text);
        settings->setIniCodec("UTF-8");
        settings->setValue("host", text + text);
        QVERIFY(write(*settings, {{"new/key", 1}}));
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("host").toString(), text + text);
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsFile)
#include "tst_ZelSettingsFile.moc"

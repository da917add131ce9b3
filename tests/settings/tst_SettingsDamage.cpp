#include "SettingsDamage.h"
#include "ZelSettingsFile.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace zel;

class tst_SettingsDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damage_data();
    void damage();
    void toolkitKeepsWhatIsNotDamaged();
};

void tst_SettingsDamage::damage_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("damage");
    const auto row = [](const char* name, const QByteArray& text, const char* damage) {
        QTest::newRow(name) << text << QString(damage);
    };
    row("empty", "", "");
    row("usual", "[General]\nkey=value\n; note\n\n[a b]\nk = \"x;y=z\" ; note = \"\r\n", "");
    row("no group, no line end", "key=", "");
    row("mark of the encoding", "\xEF\xBB\xBF[General]\nkey=\xC3\xBC\n", "");
    row("line goes on", "key=a\\\nb\nother=\"\\\"\"\n", "");
    row("zero bytes", QByteArray("key=\0\n", 6), "it holds zero bytes");
    row("Latin-1", "key=\xFC\n", "it is not UTF-8 text");
    row("cut character", "key=\xE6\x97", "it is not UTF-8 text");
    row("no value", "[a]\nkey=\n\nkey\nb=1\n", "line 4 cannot be read");
    row("no key", "=1\n", "");
    row("open group", "a=1\r\n[b\r\nc=2\r\n", "line 2 cannot be read");
    row("value behind a group", "[a]b=1\n", "line 1 cannot be read");
    row("open quotation", "a=\"1\nb=2\n", "line 1 cannot be read");
    row("quoted assignment", "\"a=1\"\n", "line 1 cannot be read");
    row("escaped assignment", "; c:\\\na\\=1\n", "line 2 cannot be read");
    row("group in a group", "[a]\nb\\c=1\n", "");
    row("other note", "# note\n", "line 1 cannot be read");
}

void tst_SettingsDamage::damage()
{
    QFETCH(QByteArray, text);
    QTEST(settingsDamage(text), "damage");
}

void tst_SettingsDamage::toolkitKeepsWhatIsNotDamaged()
{
    // In memory where there is such a disk, because each file is flushed to it.
    const QTemporaryDir folder((QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) + "/tst_XXXXXX");
    const QList<QByteArray> pieces = {
        "[",     "]",     "=", "\"", "\\", ";",   "\n",       "\n",
        "\r\n",  " ",     "a", "b1", ",",  "%41", "\xC3\xBC", "\xF0\x9F\x99\x82",
        "x=1\n", "[g]\n", "#", "@"};
    std::mt19937 random(1);
    int sound = 0;
    for (int i = 0; i < 2000; ++i) {
        QByteArray text = "first=1\n";
        for (unsigned length = random() % 12; length > 0; --length)
            text += pieces[int(random() % unsigned(pieces.size()))];
        // Another name each time: the toolkit remembers files.
        QFile file(folder.filePath(QString::number(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        QSettings settings(file.fileName(), QSettings::IniFormat);
        ZelSettingsFile::UseFileEncoding(settings);
        QVariantMap values;
        bool named = true; // The toolkit reads values without a name, but no one can ask for them.
        for (const QString& key : settings.allKeys()) {
            named = named && !key.isEmpty() && !key.endsWith('/');
            if (named && settings.contains(key)) // Not for names that begin with a slash.
                values[key] = settings.value(key);
        }
        if (!named)
            continue;
        const bool damaged = !settingsDamage(text).isEmpty();
        QVERIFY2(damaged || settings.status() == QSettings::NoError, text.constData());
        settings.setValue("last", 1);
        settings.sync();

        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray written = file.readAll();
        QVERIFY2(damaged || settingsDamage(written).isEmpty(), (text + "\nbecame\n" + written).constData());
        QVERIFY(file.copy(file.fileName() + " again"));
        QSettings again(file.fileName() + " again", QSettings::IniFormat);
        ZelSettingsFile::UseFileEncoding(again);
        for (const QString& key : values.keys())
            QVERIFY2(damaged || again.value(key) == values[key], text.constData());
        sound += damaged ? 0 : 1;
    }
    QVERIFY(sound > 200 && sound < 1800);
}

QTEST_GUILESS_MAIN(tst_SettingsDamage)
#include "tst_SettingsDamage.moc"

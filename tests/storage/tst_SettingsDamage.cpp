#include "IniCodec.h"
#include "Rows.h"
#include "SettingsDamage.h"

class tst_SettingsDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damage_data()
    {
        // That QSettings keeps what is not called damaged is for the fuzzer to refute.
        const std::tuple<const char*, QByteArray, QString> rows[] = {
            {"usual", "=1\n[general]\t; note\nkey=value\n\t; note\n\n[a b]\nk = \"x;y=z\"\t; note = \"\r\n",
             ""},
            {"mark of the encoding", "\xEF\xBB\xBF[General]\nkey=\xC3\xBC\n", ""},
            {"mark as a name", "\xEF\xBB\xBFkey=1\n", "line 1 has a key twice, or a lost name"},
            {"takes in the next line", "key=C:\\\nb=1\n", "line 1 cannot be read"},
            {"takes in the end", "key=C:\\", "line 1 cannot be read"},
            {"goes on only once", "key=\"a\\\n\nb\"\n", "line 2 cannot be read"},
            {"cut value", "a=1 ; 2\npath=/a;/b\n", "line 2 cannot be read"},
            {"escapes", "a=\"\\x1f642\"\n", "line 1 cannot be read"},
            {"escapes of QSettings",
             "key=\"a\\\nb\"\nother=\"\\\"\"\na=\\?\\0\\x1f\\xfeff\\n\\\"\\\\,@Invalid()\n", ""},
            {"no escape", "a=\"C:\\Users\"\n", "line 1 cannot be read"},
            {"zero bytes", QByteArray("key=\0\n", 6), "it holds zero bytes"},
            {"cut character", "key=\xE6\x97", "it is not UTF-8 text"},
            {"Latin 1", "key=\xFC\n", "it is not UTF-8 text"},
            {"no character", "key=\xEF\xB7\xAF\n", "it is not UTF-8 text"},
            {"last of a plane", "key=\xEF\xBF\xBF\n", "it is not UTF-8 text"},
            {"half a character", "key=\"\\xd83dz\"\n", "line 1 cannot be read"},
            {"key twice", "a =1\n[ general ]\na=2\n", "line 3 has a key twice, or a lost name"},
            {"long escape in a name", "%U0061=1\na=2\n", "line 2 has a key twice, or a lost name"},
            {"comment in a name", "a;b=1\n", "line 1 cannot be read"},
            {"no value", "[a]\nkey=\n\nkey\nb=1\n", "line 4 cannot be read"},
            {"open group", "a=1\r\n[b\r\nc=2\r\n", "line 2 cannot be read"},
            {"value behind a group", "[a]b=1\n", "line 1 cannot be read"},
            {"open quotation", "a=\"1\nb=2\n", "line 1 cannot be read"},
            {"quoted name", "\"a\"=1\n", "line 1 cannot be read"},
            {"escaped assignment", "; c:\\\na\\=1\n", "line 2 cannot be read"},
            {"group in a group", "[a]\n=1\n[a\\b]\nc\\d=1\n", ""},
            {"no name in a group of a group", "[a\\b]\n=1\n", "line 2 has a key twice, or a lost name"},
            {"no name before a slash", "/b=1\n", "line 1 has a key twice, or a lost name"},
            {"no group before a slash", "[/b]\n", "line 1 has a key twice, or a lost name"},
            {"written as no name", "b%2F=1\n", "line 1 has a key twice, or a lost name"},
            {"name of another", "[%general]\na=1\n", "line 2 has a key twice, or a lost name"},
            {"other note", "# note\n", "line 1 cannot be read"}};
        addRows({"text", "expected"}, rows);
    }

    void damage()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, expected);
        QCOMPARE(zel::settingsDamage(text), expected);
    }

    /// Streams of others, which ask for a codec by its name and split characters, do not get that of the
    /// settings.
    void codecIsForTheSettingsOnly()
    {
        QTextCodec& codec = zel::iniCodec();
        QCOMPARE(QTextCodec::codecForName("utf8")->mibEnum(), 106);
        QTextDecoder decoder(&codec);
        QString text;
        for (const char byte : {'\xF0', '\x9F', '\x99', '\x82'})
            text += decoder.toUnicode(&byte, 1);
        QCOMPARE(text, QString::fromUtf8("\xF0\x9F\x99\x82"));
    }

    void objects_data()
    {
        const QByteArray end = "Variant(\\x0)\"\n";
        const std::tuple<const char*, QByteArray, QByteArray> rows[] = {
            {"in a list", "x=a, \"@" + end, ""},
            {"escaped", "x=\"\\x100000040" + end, ""},
            {"octal", "x=\"\\0100" + end, ""},
            {"nothing but escapes", "x=\"\\x40" + end, ""},
            {"unknown escape", "x=\"@\\q" + end, ""},
            {"after a mark", "x=\"@\xEF\xBB\xBF" + end, ""},
            {"joined lines", "x=\"@Vari\\\r\nant(\\x0)\"\n", ""},
            {"oddly joined lines", "x=@Vari\\\n\rant(\\x0)\n", ""},
            {"behind quotes", "x=\"@\" Variant(\\x0)\n", ""},
            {"behind quotes and a tab", "x=\"@\"\tVariant(\\x0)\n", ""},
            {"time", "x=@DateTime(\\x0)\n", ""},
            {"among junk", "junk\nx=\"a;b\", \"@" + end + "\n", "junk\n\n"},
            {"quotes among junk", "junk\nx=\"@\\x56\" \t\"ariant(\"\n", "junk\n"},
            {"sign alone", "x=@\n", "x=@\n"},
            {"escaped by a sign", "x=@@Variant(\n", "x=@@Variant(\n"},
            {"behind a comma in quotes", "x=\"b, @Variant(\"\n", "x=\"b, @Variant(\"\n"},
            {"within a text", "x=the @Variant(\n", "x=the @Variant(\n"},
            {"bytes", "x=@ByteArray(x)\n", "x=@ByteArray(x)\n"}};
        addRows({"line", "kept"}, rows);
    }

    void objects()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, kept);
        QVERIFY(zel::holdsObjects("a=1\n" + line + "c=1\n") == (line != kept));
        QCOMPARE(zel::withoutObjects("a=1\n" + line + "c=1\n"), "a=1\n" + kept + "c=1\n");
    }
};

QTEST_APPLESS_MAIN(tst_SettingsDamage)
#include "tst_SettingsDamage.moc"

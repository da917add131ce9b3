#include "platform/ZelDirectory.h"
#include "platform/kqDirUtils.h"

#include <QtTest>

class tst_Directories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void userFolders()
    {
        // The value of the variables, and its folder; null for the one below the home folder.
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"", {}},       {"/data/of me", "/data/of me"},  {"/data//", "/data"}, {"data", {}},
            {"~/data", {}}, {"/d\xc3\xa4ta", "/d\xc3\xa4ta"}};
        const QByteArray home = "/home/\xe5\xb1\xb1";
        qputenv("HOME", home + '/');
        for (const auto& [value, folder] : rows) {
            for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
                qputenv(variable, value);
            const auto settings = QByteArray::fromStdString(kqDirUtils::GetAppDataFolderUtf8());
            QCOMPARE(settings, folder.isNull() ? home + "/.config" : folder);
            const auto cache = QByteArray::fromStdString(ZelDirectory::GetTempFolderUtf8("\xc3\x84pp"));
            QCOMPARE(cache, (folder.isNull() ? home + "/.cache" : folder) + "/\xc3\x84pp");
        }
    }
};

QTEST_APPLESS_MAIN(tst_Directories)
#include "tst_Directories.moc"

#include "QtTestCompat.h"

#include <dlfcn.h>

/// A plug-in that uses the control center can be unloaded, with the library, and loaded again.
class tst_Reload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsTwice()
    {
        const QTemporaryDir home;
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, home.path().toUtf8());
        for (int round = 0; round < 2; ++round) {
            QLibrary plugin(PLUGIN_USER);
            QVERIFY2(plugin.load(), qPrintable(plugin.errorString()));
            void* const used = dlopen(CONTROL_CENTER, RTLD_LAZY | RTLD_NOLOAD);
            QVERIFY(used && dlclose(used) == 0);
            reinterpret_cast<void (*)()>(plugin.resolve("useControlCenter"))();
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(plugin.unload(), qPrintable(plugin.errorString()));
            QVERIFY2(!dlopen(CONTROL_CENTER, RTLD_LAZY | RTLD_NOLOAD), "the library is still there");
            // Calls what was left behind in Qt.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QTest::qWait(0);
        }
    }
};

QTEST_MAIN(tst_Reload)
#include "tst_Reload.moc"

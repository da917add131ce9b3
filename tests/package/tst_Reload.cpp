#include <QLibrary>
#include <QTemporaryDir>
#include <QtTest>

#include <dlfcn.h>

/// A plug-in that uses the control center can be unloaded, with the library, and loaded again.
class tst_Reload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsTwice()
    {
        const QTemporaryDir home;
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        qputenv("XDG_CACHE_HOME", home.path().toUtf8());
        for (int round = 0; round < 2; ++round) {
            QLibrary plugin(PLUGIN_USER);
            QVERIFY2(plugin.load(), qPrintable(plugin.errorString()));
            QVERIFY(isLoaded(CONTROL_CENTER));
            plugin.resolve("useControlCenter")();
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(plugin.unload(), qPrintable(plugin.errorString()));
            QVERIFY(!isLoaded(CONTROL_CENTER));
            // What was left behind in the toolkit would now be called.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QTest::qWait(0);
        }
    }

private:
    static bool isLoaded(const char* library)
    {
        void* const handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle;
    }
};

QTEST_MAIN(tst_Reload)

#include "tst_Reload.moc"

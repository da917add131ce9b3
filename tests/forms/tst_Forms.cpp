#include "QtTestCompat.h"

#include <QUiLoader>

class tst_Forms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyObjectIsLoaded()
    {
        for (const QString folder : {"controlcenter", "display", "examples", "panels", "standalone"}) {
            QDirIterator forms(ZEL_SOURCES "/" + folder, {"*.ui"}, QDir::Files, QDirIterator::Subdirectories);
            QVERIFY(forms.hasNext());
            while (forms.hasNext())
                everyObjectIsLoaded(forms.next());
        }
    }

private:
    static void everyObjectIsLoaded(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form(QUiLoader().load(&file));
        QVERIFY2(form, qPrintable(path));
        file.seek(0);
        const QString xml = file.readAll();
        QMap<QString, QString> baseOf; // Of a promoted class.
        const QRegularExpression promotion("<class>(\\w+)</class>\\s*<extends>(\\w+)</extends>");
        for (auto each = promotion.globalMatch(xml); each.hasNext();) {
            const QStringList classes = each.next().capturedTexts();
            baseOf[classes[1]] = classes[2];
        }
        auto objects =
            QRegularExpression("<(widget|layout) class=\"(\\w+)\" name=\"(\\w+)\"").globalMatch(xml);
        QVERIFY(objects.hasNext());
        while (objects.hasNext()) {
            const QStringList object = objects.next().capturedTexts();
            const QObject* loaded =
                form->objectName() == object[3] ? form.get() : form->findChild<QObject*>(object[3]);
            const QString expected = baseOf.value(object[2], object[2]);
            QVERIFY2(loaded && loaded->inherits(qPrintable(expected)), qPrintable(path + ": " + object[3]));
        }
    }
};

QTEST_MAIN(tst_Forms)
#include "tst_Forms.moc"

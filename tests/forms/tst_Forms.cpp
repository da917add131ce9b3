#include <QUiLoader>
#include <QtTest>
#include <QtWidgets>

class tst_Forms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyObjectIsLoaded_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* folder : {"controlcenter", "display", "examples", "panels", "standalone"}) {
            QDirIterator forms(QString(ZEL_SOURCES "/") + folder, {"*.ui"}, QDir::Files,
                               QDirIterator::Subdirectories);
            QVERIFY(forms.hasNext());
            while (forms.hasNext())
                QTest::newRow(qPrintable(QFileInfo(forms.next()).fileName())) << forms.filePath();
        }
    }

    void everyObjectIsLoaded()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QUiLoader loader;
        const QScopedPointer<QWidget> form(loader.load(&file));
        QVERIFY2(form, qPrintable(loader.errorString()));

        QMap<QString, QString> classOf, baseOf; // by the object's name, and by the promoted class
        file.seek(0);
        QXmlStreamReader xml(&file);
        for (QString promoted; !xml.atEnd(); xml.readNext()) {
            const QString element = xml.isStartElement() ? xml.name().toString() : QString();
            if (element == "widget" || element == "layout")
                classOf[xml.attributes().value("name").toString()] =
                    xml.attributes().value("class").toString();
            else if (element == "class")
                promoted = xml.readElementText();
            else if (element == "extends")
                baseOf[promoted] = xml.readElementText();
        }
        QVERIFY(classOf.size() > 1);
        for (auto object = classOf.begin(); object != classOf.end(); ++object) {
            const QObject* loaded =
                form->objectName() == object.key() ? form.data() : form->findChild<QObject*>(object.key());
            QVERIFY2(loaded, qPrintable(object.key()));
            const QString expected = baseOf.value(*object, *object);
            QVERIFY2(loaded->inherits(qPrintable(expected)), qPrintable(object.key()));
        }
    }
};

QTEST_MAIN(tst_Forms)
#include "tst_Forms.moc"

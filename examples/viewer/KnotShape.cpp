#include "KnotShape.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>

bool KnotShape::load(const QString& file, QString& error)
{
    const QSettings document(file, QSettings::IniFormat);
    if (!QFile::exists(file) || !document.contains("knot/windings") || !document.contains("knot/turns")) {
        error = QCoreApplication::translate("KnotShape", "\"%1\" is not a model of this viewer.").arg(file);
        return false;
    }
    windings = qBound(1, document.value("knot/windings").toInt(), 9);
    turns = qBound(0, document.value("knot/turns").toInt(), 9);
    thickness = qBound(0.1, document.value("knot/thickness", thickness).toDouble(), 1.0);
    return true;
}

bool KnotShape::save(const QString& file, QString& error) const
{
    QSettings document(file, QSettings::IniFormat);
    document.setValue("knot/windings", windings);
    document.setValue("knot/turns", turns);
    document.setValue("knot/thickness", thickness);
    document.sync();
    if (document.status() == QSettings::NoError)
        return true;
    error = QCoreApplication::translate("KnotShape", "\"%1\" cannot be written.").arg(file);
    return false;
}

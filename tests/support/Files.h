#ifndef ZEL_FILES_H
#define ZEL_FILES_H

#include "QtTestCompat.h"

/// With line ends as in C. Empty when the file cannot be read.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

/// Makes the folder, too.
inline void store(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

#endif

#ifndef ZEL_ZELQTCOMPAT_H
#define ZEL_ZELQTCOMPAT_H

// The differences between Qt 4.8 and Qt 5, and between operating systems, that concern product code.

#include <QCoreApplication>
#include <QString>
#include <QTextCodec>
#include <QtGlobal>

namespace zel {

/// Makes QString::split() drop empty parts.
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
const Qt::SplitBehavior SkipEmptyParts = Qt::SkipEmptyParts;
#else
const QString::SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#endif

/// Whether QSettings replaces its file in one step; else it rewrites the file in place.
const bool SettingsReplaceTheirFile = QT_VERSION >= QT_VERSION_CHECK(5, 10, 0);

/// While it exists, every message of Qt, of any type, goes to a function.
template <void (*Sink)(const QString& text)>
class QtMessageSink
{
public:
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QtMessageSink()
        : m_previous(qInstallMessageHandler(&forward))
    {
    }

    ~QtMessageSink()
    {
        qInstallMessageHandler(m_previous);
    }
#else
    QtMessageSink()
        : m_previous(qInstallMsgHandler(&forward))
    {
    }

    ~QtMessageSink()
    {
        qInstallMsgHandler(m_previous);
    }
#endif

    QtMessageSink(const QtMessageSink&) = delete;
    QtMessageSink& operator=(const QtMessageSink&) = delete;

private:
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    static void forward(QtMsgType, const QMessageLogContext&, const QString& text)
    {
        Sink(text);
    }

    const QtMessageHandler m_previous;
#else
    static void forward(QtMsgType, const char* text)
    {
        Sink(QString::fromLocal8Bit(text));
    }

    const QtMsgHandler m_previous;
#endif
};

/// True for the native window by which Qt 5 receives input before a widget does.
inline bool isNativeWindow(const QObject* object)
{
    return object->inherits("QWindow");
}

/// Makes the interface follow the screen's scale, from Qt 5.6 on. Call it before the application object
/// exists.
inline void followScreenScale()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// Reads and writes file names and arguments as UTF-8, also where the process has no locale: under the "C"
/// locale Qt would replace each non-ASCII character by a question mark. On Windows names are in Unicode
/// anyway.
inline void useUtf8FileNames()
{
#if !defined(Q_OS_WIN)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

} // namespace zel

#endif

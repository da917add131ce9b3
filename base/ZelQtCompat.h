#ifndef ZEL_ZELQTCOMPAT_H
#define ZEL_ZELQTCOMPAT_H

// The few differences between the toolkit's versions 4.8 and 5, and between operating systems, that product
// code meets.

#include <QCoreApplication>
#include <QString>
#include <QTextCodec>
#include <QtGlobal>

namespace zel {

/// What QString::split takes to drop empty parts.
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
const Qt::SplitBehavior SkipEmptyParts = Qt::SkipEmptyParts;
#else
const QString::SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#endif

/// Whether the toolkit's settings replace their file in one step, or else rewrite it in place.
const bool SettingsReplaceTheirFile = QT_VERSION >= QT_VERSION_CHECK(5, 10, 0);

/// Hands every message of the toolkit, whatever its type, to a function for as long as it lives.
template <void (*Sink)(const QString& text)>
class ToolkitMessageSink
{
public:
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    ToolkitMessageSink()
        : m_former(qInstallMessageHandler(&forward))
    {
    }

    ~ToolkitMessageSink()
    {
        qInstallMessageHandler(m_former);
    }
#else
    ToolkitMessageSink()
        : m_former(qInstallMsgHandler(&forward))
    {
    }

    ~ToolkitMessageSink()
    {
        qInstallMsgHandler(m_former);
    }
#endif

    ToolkitMessageSink(const ToolkitMessageSink&) = delete;
    ToolkitMessageSink& operator=(const ToolkitMessageSink&) = delete;

private:
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    static void forward(QtMsgType, const QMessageLogContext&, const QString& text)
    {
        Sink(text);
    }

    const QtMessageHandler m_former;
#else
    static void forward(QtMsgType, const char* text)
    {
        Sink(QString::fromLocal8Bit(text));
    }

    const QtMsgHandler m_former;
#endif
};

/// True for the native window by which some versions of the toolkit receive input before a widget does.
inline bool isNativeWindow(const QObject* object)
{
    return object->inherits("QWindow");
}

/// Lets the interface follow the screen's scale where the toolkit can. To be called before the application
/// object exists.
inline void followScreenScale()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// Reads and writes file names and arguments as UTF-8, also where the process has no locale: under the "C"
/// locale the toolkit would replace every other character by a question mark. Windows passes names in
/// Unicode.
inline void useUtf8FileNames()
{
#if !defined(Q_OS_WIN)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

} // namespace zel

#endif

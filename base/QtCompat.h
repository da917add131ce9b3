#ifndef ZEL_QTCOMPAT_H
#define ZEL_QTCOMPAT_H

// The differences between Qt 4.8 and Qt 5 that concern product code.

#include <QCoreApplication>
#include <QString>
#include <QSysInfo>
#include <QtGlobal>

namespace zel {

/// Makes QString::split() drop empty parts.
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
const Qt::SplitBehavior SkipEmptyParts = Qt::SkipEmptyParts;
#else
const QString::SplitBehavior SkipEmptyParts = QString::SkipEmptyParts;
#endif

/// While it lives, sends every message of Qt, of any type, to a function.
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

/// Name and version of the operating system; before Qt 5.4 only its family.
inline QString systemName()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 4, 0)
    return QSysInfo::prettyProductName() + ", " + QSysInfo::kernelType() + ' ' + QSysInfo::kernelVersion();
#elif defined(Q_OS_WIN)
    return "Windows";
#else
    return "Unix";
#endif
}

/// True for the native window (QWindow) to which Qt 5 delivers input before the widget.
inline bool isNativeWindow(const QObject* object)
{
    return object->inherits("QWindow");
}

} // namespace zel

#endif

#ifndef ZEL_LANGUAGEFOLLOWER_H
#define ZEL_LANGUAGEFOLLOWER_H

#include <QEvent>
#include <QObject>
#include <QWidget>

#include <functional>

namespace zel {

/// Calls a function whenever the language of the interface has changed, which is when a translator is
/// installed or removed. Those of a widget come before those of its children. The widget owns this object.
class LanguageFollower : public QObject
{
public:
    LanguageFollower(QWidget* widget, const std::function<void()>& setTexts)
        : QObject(widget)
        , m_setTexts(setTexts)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_setTexts();
        return false;
    }

private:
    const std::function<void()> m_setTexts;
};

} // namespace zel

#endif

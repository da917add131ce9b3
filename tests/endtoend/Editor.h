#ifndef ZEL_EDITOR_H
#define ZEL_EDITOR_H

#include "Desktop.h"

/// The editor's executable, as a user runs it who has nothing but a home folder. Killed with the object.
class Editor
{
public:
    Editor(const Desktop& desktop, const QString& home);
    ~Editor();

    void start(const QStringList& arguments = QStringList());
    /// Waits for the end; -1 when it does not come in time or is a crash.
    int exitCode();

    /// Waits for a window whose title matches to have the keyboard; it is the one that what follows is about.
    bool shows(const QString& title);
    /// Moves the mouse, clicks and types, in the words of xdotool; %1 stands for the window.
    void act(QString action) const { m_desktop.ask("xdotool", action.replace("%1", m_window).split(' ')); }
    /// Waits for a window, then does something that closes it.
    bool isAnswered(const QString& title, const QString& action)
    {
        const bool shown = shows(title);
        act(action);
        return shown;
    }
    bool has(const QString& property, const QString& state) const;
    QImage picture() const { return m_desktop.picture(m_window); }

private:
    const Desktop& m_desktop;
    QString m_window;
    QProcess m_process;
};

#endif

#include "ControlCenterSlides.h"

#include "ui_ControlCenter.h"

#include "MenuColumn.h"
#include "SettingsDrawer.h"
#include "Slide.h"

#include "platform/kqDMIApplication.h"

namespace zel {

ControlCenterSlides::ControlCenterSlides(QWidget* column, const Ui::ControlCenter& form, MenuColumn& menu,
                                         SettingsDrawer& drawer, kqDMIApplication& application)
    : QObject(column)
    , m_column(*column)
    , m_list(*form.preferenceFrame)
    , m_listButton(*form.controlCenterButton)
    , m_menu(menu)
    , m_drawer(drawer)
    , m_application(application)
    , m_menuSlide(
          createSlide("controlCenterWidth", MenuColumn::OpenWidth, SLOT(onControlCenterWidthFinished())))
    , m_drawerSlide(createSlide("settingsWidth", SettingsDrawer::OpenWidth, SLOT(onSettingsWidthFinished())))
{
}

ControlCenterSlides::~ControlCenterSlides()
{
    for (QPropertyAnimation* slide : {m_menuSlide, m_drawerSlide}) {
        if (slide->state() != QAbstractAnimation::Running)
            continue;
        // Its last step may have led here, for a page that appears may delete the control center.
        slide->disconnect();
        slide->stop();
        slide->setParent(nullptr);
        slide->deleteLater();
    }
    if (m_enginePaused)
        resumeEngine();
}

QPropertyAnimation* ControlCenterSlides::createSlide(const char* property, int openWidth,
                                                     const char* finishedSlot)
{
    auto* slide = new QPropertyAnimation(&m_column, property, this);
    slide->setDuration(SlideTime);
    slide->setStartValue(0);
    slide->setEndValue(openWidth);
    connect(slide, SIGNAL(finished()), &m_column, finishedSlot);
    return slide;
}

bool ControlCenterSlides::isDrawerToBeOpen() const
{
    return m_drawer.area() && !m_drawer.area()->isHidden() &&
           m_drawerSlide->direction() == QAbstractAnimation::Forward;
}

bool ControlCenterSlides::isDrawerSliding() const
{
    return m_drawerSlide->state() == QAbstractAnimation::Running;
}

double ControlCenterSlides::drawerProgress() const
{
    return static_cast<double>(m_drawerSlide->currentTime()) / m_drawerSlide->duration();
}

void ControlCenterSlides::slideMenu(bool open, QPushButton* opener)
{
    const bool wasVisible = m_column.isVisible();
    pauseEngine();
    m_menuSlide->setEasingCurve(open ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
    m_menuSlide->setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (open)
        m_list.hide();
    else
        m_listButton.setChecked(false);
    if (m_list.isVisible())
        slideDrawer(false, false);
    if (opener)
        opener->setChecked(open);
    if (m_menuSlide->state() == QAbstractAnimation::Running)
        return;
    if (wasVisible == open)
        QMetaObject::invokeMethod(&m_column, "onControlCenterWidthFinished");
    else
        startSlide(*m_menuSlide, m_column);
}

void ControlCenterSlides::slideDrawer(bool open, bool keepEdits)
{
    if (!m_drawer.area())
        return;
    const bool wasVisible = m_drawer.isVisible();
    // The closing drawer still shows the page buttons, which the actions must not push down.
    m_menu.giveSpace(open);
    m_menu.setVisible(!open);
    pauseEngine();
    if (open) {
        const QPointer<ControlCenterSlides> self(this);
        if (!wasVisible && !keepEdits)
            Q_EMIT aboutToOpen();
        if (!self)
            return;
        m_drawer.showWithoutNewPages(drawerProgress());
    }
    m_drawerSlide->setEasingCurve(open ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
    m_drawerSlide->setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (wasVisible != open)
        startSlide(*m_drawerSlide, m_column);
    else if (!open)
        closeDrawer(); // It may still be open in a hidden window.
}

void ControlCenterSlides::showDrawer(bool keepEdits)
{
    m_listButton.setChecked(true);
    m_list.show();
    const QPointer<ControlCenterSlides> self(this);
    slideDrawer(true, keepEdits);
    if (self)
        resumeEngineUnlessSliding();
}

void ControlCenterSlides::onMenuFinished()
{
    m_menuOpen = m_menuSlide->direction() == QAbstractAnimation::Forward;
    if (!m_menuOpen)
        m_column.hide();
    resumeEngine();
}

void ControlCenterSlides::onDrawerFinished()
{
    resumeEngine();
    m_drawerOpen = m_drawerSlide->direction() == QAbstractAnimation::Forward;
    if (m_drawerOpen)
        m_drawer.showAllPages();
    else
        closeDrawer();
}

void ControlCenterSlides::closeDrawer()
{
    m_drawerOpen = false;
    m_list.hide();
    m_menu.giveSpace(true);
    if (m_drawer.area())
        m_drawer.area()->hide();
}

void ControlCenterSlides::pauseEngine()
{
    if (!isAnimated(m_column))
        return;
    m_enginePaused = true;
    m_application.setUpdateEngineEnabled(false);
}

void ControlCenterSlides::resumeEngine()
{
    m_enginePaused = false;
    m_application.setUpdateEngineEnabled(true);
}

void ControlCenterSlides::resumeEngineUnlessSliding()
{
    if (m_menuSlide->state() != QAbstractAnimation::Running && !isDrawerSliding())
        resumeEngine();
}

} // namespace zel

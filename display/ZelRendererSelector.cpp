#include "ZelRendererSelector.h"

#include "ui_ZelRendererSelector.h"

#include "platform/kqMovableObject.h"

#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QVariant>

namespace zel {

namespace {
const char* const scSoftware = "software";
}

ZelRendererSelector::ZelRendererSelector(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_form(new Ui::ZelRendererSelector)
{
    setProperty(scSoftware, false);
    m_form->setupUi(this);
    // An icon, unlike a pixmap of the form, also finds the image for screens of double density.
    m_form->label->setPixmap(QIcon(":/menu/Menu/point.png").pixmap(8, 8));
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    kqMovableObject* movable = new kqMovableObject(this);
    movable->setAnchorObject(m_form->titleFrame, this);

    m_form->raytracerButton->installEventFilter(this);
    m_form->deferredButton->installEventFilter(this);
    m_form->okButton->setFocus();
}

ZelRendererSelector::~ZelRendererSelector() = default;

bool ZelRendererSelector::useGPURenderer() const
{
    return !property(scSoftware).toBool();
}

bool ZelRendererSelector::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::MouseButtonRelease && choose(watched);
}

void ZelRendererSelector::keyPressEvent(QKeyEvent* event)
{
    const QWidget* focused = focusWidget();
    const bool onEngine = focused == m_form->raytracerButton || focused == m_form->deferredButton;
    if (onEngine && event->key() == Qt::Key_Space)
        choose(focused);
    else
        QDialog::keyPressEvent(event);
}

// Tells whether the choice changed.
bool ZelRendererSelector::choose(const QObject* engine)
{
    const bool software = engine != m_form->deferredButton;
    if (property(scSoftware).toBool() == software)
        return false;
    setProperty(scSoftware, software);
    // Rules that depend on a property are evaluated only when the style sheet is set.
    setStyleSheet(styleSheet());
    return true;
}

void ZelRendererSelector::on_okButton_clicked()
{
    accept();
}

void ZelRendererSelector::on_closeButton_clicked()
{
    reject();
}

} // namespace zel

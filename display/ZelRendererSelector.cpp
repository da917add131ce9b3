#include "ZelRendererSelector.h"

#include "ui_ZelRendererSelector.h"

#include "Accessibility.h"
#include "LabelImage.h"
#include "LanguageFollower.h"

#include "platform/kqMovableObject.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMap>
#include <QTextDocumentFragment>
#include <QVariant>

namespace zel {

namespace {
const char* const SoftwareProperty = "software";
}

ZelRendererSelector::ZelRendererSelector(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::ZelRendererSelector)
{
    setProperty(SoftwareProperty, false);
    m_ui->setupUi(this);
    showImage(*m_ui->label, ":/menu/Menu/point.png", 8);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    auto* movable = new kqMovableObject(this);
    movable->setAnchorObject(m_ui->titleFrame, this);

    for (QLabel* engine : {m_ui->raytracerButton, m_ui->deferredButton})
        engine->installEventFilter(this);
    announceEngines();
    new LanguageFollower(this, [this] {
        m_ui->retranslateUi(this);
        announceEngines();
    });
    m_ui->okButton->setFocus();
}

ZelRendererSelector::~ZelRendererSelector() = default;

bool ZelRendererSelector::useGPURenderer() const
{
    return !property(SoftwareProperty).toBool();
}

bool ZelRendererSelector::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    static_cast<QWidget*>(watched)->setFocus();
    return choose(watched);
}

void ZelRendererSelector::keyPressEvent(QKeyEvent* event)
{
    QWidget* const low = m_ui->raytracerButton;
    QWidget* const high = m_ui->deferredButton;
    QWidget* const focused = focusWidget();
    QMap<int, QWidget*> engines;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        engines[key] = focused;
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up})
        engines[key] = low;
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down})
        engines[key] = high;
    QWidget* engine = engines.value(event->key());
    if (!engine || (focused != low && focused != high)) {
        QDialog::keyPressEvent(event);
        return;
    }
    engine->setFocus();
    choose(engine);
}

bool ZelRendererSelector::choose(const QObject* engine)
{
    const bool software = engine != m_ui->deferredButton;
    if (property(SoftwareProperty).toBool() == software)
        return false;
    setProperty(SoftwareProperty, software);
    // QStyleSheetStyle evaluates selectors on properties only when the style sheet is set.
    setStyleSheet(styleSheet());
    announceEngines();
    return true;
}

void ZelRendererSelector::announceEngines()
{
    for (QLabel* engine : {m_ui->raytracerButton, m_ui->deferredButton}) {
        const auto text = QTextDocumentFragment::fromHtml(engine->text());
        engine->setAccessibleName(text.toPlainText().simplified());
        announceChoice(*engine, useGPURenderer() == (engine == m_ui->deferredButton));
    }
}

} // namespace zel

#include "ZelRendererSelector.h"

#include "ui_ZelRendererSelector.h"

#include "Accessibility.h"
#include "LabelImage.h"
#include "LanguageFollower.h"

#include "platform/kqMovableObject.h"

#include <QEvent>
#include <QKeyEvent>
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
    nameEngines();
    new LanguageFollower(this, [this] {
        m_ui->retranslateUi(this);
        nameEngines();
    });
    announceChosen();
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
    const QWidget* focused = focusWidget();
    QWidget* engine = nullptr;
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        engine = focused == low ? low : high;
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        engine = low;
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        engine = high;
        break;
    default:
        break;
    }
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
    announceChosen();
    return true;
}

void ZelRendererSelector::announceChosen()
{
    announceChoice(*m_ui->raytracerButton, !useGPURenderer());
    announceChoice(*m_ui->deferredButton, useGPURenderer());
}

void ZelRendererSelector::nameEngines()
{
    for (QLabel* engine : {m_ui->raytracerButton, m_ui->deferredButton}) {
        const auto text = QTextDocumentFragment::fromHtml(engine->text());
        engine->setAccessibleName(text.toPlainText().simplified());
    }
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

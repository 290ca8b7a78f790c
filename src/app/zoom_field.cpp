#include "app/zoom_field.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using widgets::CurrentTheme;

constexpr int kPercents[] = {25, 50, 100, 200, 400, 800, 1600, 2000};
constexpr int kWidth = 80;  // logical pixels

QString Percent(double zoom) {
    return QString::number(std::lround(zoom * 100)) + "%";
}

}  // namespace

ZoomField::ZoomField(QWidget* parent) : QComboBox(parent) {
    setObjectName("ZoomField");
    setAccessibleName(Words::tr("Zoom"));
    setToolTip(Words::tr("Zoom"));
    setFont(widgets::ChromeFont(widgets::kNormalText));
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    for (const int percent : kPercents)
        addItem(QString::number(percent) + "%", percent / 100.0);
    insertSeparator(count());
    addItem(Words::tr("Fit"));
    addItem(Words::tr("1:1"), 1.0);
    setMaxVisibleItems(count());
    for (int entry = 0; entry < count(); ++entry)
        if (!itemText(entry).isEmpty())
            setItemData(entry, QSize(0, widgets::HeightFor(widgets::kControlHeight)),
                        Qt::SizeHintRole);
    setCurrentIndex(-1);

    lineEdit()->setValidator(new QRegularExpressionValidator(
        QRegularExpression("[0-9]{0,4}([.,][0-9]{0,2})?\\s*%?"), lineEdit()));
    lineEdit()->setAcceptDrops(false);  // the window takes them
    lineEdit()->setAccessibleName(accessibleName());
    lineEdit()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, &ZoomField::Choose);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ZoomField::CommitText);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &ZoomField::Finished);
}

void ZoomField::ShowZoom(double zoom) {
    if (zoom == zoom_)
        return;
    zoom_ = zoom;
    if (!lineEdit()->isModified())
        ShowText();
}

// The list stands at the zoom in force, so that leaving the field chooses nothing.
void ZoomField::ShowText() {
    const QString text = zoom_ > 0 ? Percent(zoom_) : QString();
    setCurrentIndex(text.isEmpty() ? -1 : findText(text));
    setEditText(text);
    lineEdit()->setModified(false);
}

QSize ZoomField::sizeHint() const {
    return {widgets::WidthFor(kWidth), widgets::HeightFor(widgets::kControlHeight)};
}

// The list is as wide as its words, whatever the field is.
void ZoomField::showPopup() {
    int width = 0;
    for (int entry = 0; entry < count(); ++entry)
        width = std::max(width, fontMetrics().horizontalAdvance(itemText(entry)));
    view()->setMinimumWidth(width + 2 * widgets::kWideSpace);
    QComboBox::showPopup();
}

void ZoomField::Choose(int entry) {
    lineEdit()->setModified(false);
    const QVariant zoom = itemData(entry);
    if (!zoom.isValid())
        emit FitWanted();
    else if (zoom.toDouble() != zoom_)
        emit ZoomWanted(zoom.toDouble());
    ShowText();
    emit Finished();
}

void ZoomField::CommitText() {
    if (!lineEdit()->isModified())
        return;
    lineEdit()->setModified(false);
    QString text = lineEdit()->text().remove('%');
    bool isNumber = false;
    const double percent = text.replace(',', '.').trimmed().toDouble(&isNumber);
    if (isNumber && percent > 0 && percent / 100 != zoom_)
        emit ZoomWanted(percent / 100);
    ShowText();
}

bool ZoomField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    if (event->type() != QEvent::ShortcutOverride)
        return QComboBox::eventFilter(watched, event);
    // Escape is ours; Undo and Redo are the field's only while something is typed.
    auto& key = *static_cast<QKeyEvent*>(event);
    const bool isEscape = key.key() == Qt::Key_Escape;
    const bool isUndo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    key.setAccepted(isEscape);
    return isEscape || (isUndo && !lineEdit()->isModified());
}

void ZoomField::keyPressEvent(QKeyEvent* event) {
    const bool isUp = event->key() == Qt::Key_Up;
    if (event->key() == Qt::Key_Escape) {
        ShowText();
        emit Finished();
    } else if ((isUp || event->key() == Qt::Key_Down) && !(event->modifiers() & Qt::AltModifier)) {
        CommitText();
        emit StepWanted(isUp ? 1 : -1);
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ZoomField::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void ZoomField::paintEvent(QPaintEvent*) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRectF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(isEnabled() ? CurrentTheme().Field : CurrentTheme().Ground);
    painter.setPen(!isEnabled()             ? widgets::HairlineColor()
                   : lineEdit()->hasFocus() ? CurrentTheme().Accent
                                            : CurrentTheme().Line);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), widgets::kCornerRadius,
                            widgets::kCornerRadius);
    painter.setPen(QPen(isEnabled() ? CurrentTheme().Text : widgets::HairlineColor(), 1.5));
    painter.setBrush(Qt::NoBrush);
    widgets::DrawChevron(painter, arrow.center());
}

}  // namespace orbelle::app

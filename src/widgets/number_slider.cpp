#include "widgets/number_slider.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr QSize kSize(92, kControlHeight);
constexpr int kButtonWidth = 18;
constexpr int kRepeatDelay = 400;    // milliseconds
constexpr int kRepeatInterval = 60;  // milliseconds
constexpr int kPause = 1000;         // milliseconds; ends a run of keys
constexpr int kMostDigits = 9;       // so many fit into an int

void DrawTriangle(QPainter& painter, const QPointF& middle, double height) {
    QPainterPath triangle;
    triangle.moveTo(middle.x() - 3.5, middle.y() - height / 2);
    triangle.lineTo(middle.x() + 3.5, middle.y() - height / 2);
    triangle.lineTo(middle.x(), middle.y() + height / 2);
    painter.drawPath(triangle);
}

}  // namespace

// A spin box to assistive tools; the typing field lies within it.
class NumberSlider::Accessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit Accessible(NumberSlider* slider)
        : QAccessibleWidget(slider, QAccessible::SpinBox), slider_(slider) {}

    static QAccessibleInterface* Make(const QString&, QObject* object) {
        auto* slider = qobject_cast<NumberSlider*>(object);
        return slider ? new Accessible(slider) : nullptr;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(slider_->value_)
                                          : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return slider_->value_; }
    QVariant minimumValue() const override { return slider_->minValue_; }
    QVariant maximumValue() const override { return slider_->scale_.MaxValue; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant& value) override {
        slider_->CommitText();
        emit slider_->Pressed();
        slider_->ChangeTo(std::clamp(value.toInt(), slider_->minValue_, slider_->scale_.MaxValue));
        emit slider_->Released();
    }

private:
    NumberSlider* slider_;
};

NumberSlider::NumberSlider(QWidget* parent)
    : QWidget(parent), field_(new QLineEdit(this)), track_(new SliderTrack(this)) {
    QAccessible::installFactory(Accessible::Make);
    setFocusProxy(field_);
    setFocusPolicy(Qt::StrongFocus);
    setFont(ChromeFont(kSmallText));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    field_->installEventFilter(this);
    field_->setFrame(false);
    field_->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QString("[0-9]{0,%1}").arg(kMostDigits)), field_));
    field_->setAlignment(Qt::AlignCenter);
    field_->setAcceptDrops(false);  // the window takes them
    field_->setAttribute(Qt::WA_MacShowFocusRect, false);
    QPalette colors;
    colors.setColor(QPalette::Base, Qt::transparent);
    field_->setPalette(colors);
    SetRange(0, 100);
    Store(0);

    connect(field_, &QLineEdit::textEdited, this, &NumberSlider::TakeText);
    connect(field_, &QLineEdit::editingFinished, this, &NumberSlider::CommitText);
    connect(field_, &QLineEdit::returnPressed, this, [this] {
        CommitText();
        emit Finished();
    });
    connect(track_, &SliderTrack::Pressed, this, [this] {
        CommitText();
        valueBefore_ = value_;
        emit Pressed();
    });
    connect(track_, &SliderTrack::GivenUp, this, [this] {
        ChangeTo(valueBefore_);
        emit Released();
    });
    connect(track_, &SliderTrack::Dragged, this, [this](double x) {
        const SliderScale::Drag drag = scale_.DragTo(x);
        ChangeTo(drag.Value);
        // Unless the owner has answered with a value of its own.
        if (value_ == drag.Value)
            track_->SetPlace(drag.Place);
    });
    connect(track_, &SliderTrack::Released, this, &NumberSlider::Released);
    connect(track_, &SliderTrack::Stepped, this, &NumberSlider::StepByKey);
}

NumberSlider::~NumberSlider() {
    // They outlive this part of the object, and end their gestures when they close.
    field_->disconnect(this);
    track_->disconnect(this);
}

void NumberSlider::SetRange(int minValue, int maxValue) {
    const int most = std::max(minValue, maxValue);
    if (minValue == minValue_ && most == scale_.MaxValue)
        return;
    minValue_ = minValue;
    scale_.MaxValue = most;
    track_->SetPlace(scale_.PlaceFromValue(value_));
    update();
}

void NumberSlider::SetValue(int value) {
    // An owner that answers a change with the same value must not disturb the typing of it.
    if (value == value_ && typing_)
        return;
    Store(value);
}

void NumberSlider::Store(int value) {
    value_ = value;
    field_->setText(QString::number(value));
    if (field_->hasFocus())
        field_->selectAll();
    track_->SetPlace(scale_.PlaceFromValue(value));
    update();  // an arrow that has come to its end
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
}

void NumberSlider::ChangeTo(int value) {
    const bool changes = value != value_;
    Store(value);
    if (changes)
        emit Changed(value);
}

void NumberSlider::TakeText() {
    EndSteps();
    typing_ = true;
    bool isNumber = false;
    const int number = field_->text().toInt(&isNumber);
    if (!followsTyping_ || !isNumber || number == value_)
        return;
    value_ = number;
    track_->SetPlace(scale_.PlaceFromValue(number));
    emit Changed(number);
}

void NumberSlider::FocusNumber() {
    field_->setFocus();
    field_->selectAll();
}

void NumberSlider::CommitTyping() {
    if (typing_ || stepping_)
        CommitText();
}

void NumberSlider::CommitText() {
    EndSteps();
    bool isNumber = false;
    const int number = field_->text().toInt(&isNumber);
    if (!std::exchange(typing_, false) || !isNumber || number == value_) {
        field_->setText(QString::number(value_));
        return;
    }
    emit Pressed();
    ChangeTo(number);
    emit Released();
}

void NumberSlider::StepByKey(int direction) {
    if (!stepping_) {
        CommitText();
        valueBefore_ = value_;
        emit Pressed();
        stepping_ = true;
    }
    Spin(direction);
    pause_.start(kPause, this);
}

void NumberSlider::EndSteps() {
    pause_.stop();
    if (std::exchange(stepping_, false))
        emit Released();
}

void NumberSlider::StartSpin(int direction) {
    CommitText();
    spinning_ = direction;
    emit Pressed();
    Spin(direction);
    update();
}

void NumberSlider::EndSpin() {
    if (spinning_ == 0)
        return;
    spinning_ = 0;
    repeat_.stop();
    emit Released();
    update();
}

void NumberSlider::Spin(int direction) {
    // In wide numbers: a typed value may be the last whole number there is.
    const long long next = std::clamp<long long>(static_cast<long long>(value_) + direction,
                                                 minValue_, scale_.MaxValue);
    ChangeTo(static_cast<int>(next));
}

QSize NumberSlider::sizeHint() const {
    return {WidthFor(kSize.width()), HeightFor(kSize.height(), kSmallText)};
}

QSize NumberSlider::minimumSizeHint() const {
    return {2 * kButtonWidth + WidthFor(30), sizeHint().height()};
}

QRect NumberSlider::SpinRect(int direction) const {
    const int half = height() / 2;
    const int left = width() - 2 * kButtonWidth;
    return QStyle::visualRect(layoutDirection(), rect(),
                              direction > 0 ? QRect(left, 0, kButtonWidth, half)
                                            : QRect(left, half, kButtonWidth, height() - half));
}

QRect NumberSlider::OpenRect() const {
    return QStyle::visualRect(layoutDirection(), rect(),
                              QRect(width() - kButtonWidth, 0, kButtonWidth, height()));
}

void NumberSlider::resizeEvent(QResizeEvent* event) {
    field_->setGeometry(QStyle::visualRect(
        layoutDirection(), rect(), QRect(2, 2, width() - 2 * kButtonWidth - 3, height() - 4)));
    QWidget::resizeEvent(event);
}

// The field would take them all. Escape is ours; letters are never its own, Undo and Redo only
// while a number is typed. True: the field is not to see it.
bool NumberSlider::TakeShortcut(QKeyEvent& event) const {
    const bool isEscape = event.key() == Qt::Key_Escape;
    const bool isLetter = !event.text().isEmpty() && event.text()[0].isLetter();
    const bool isUndo = event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
    event.setAccepted(isEscape);
    return isEscape || isLetter || (isUndo && !typing_);
}

bool NumberSlider::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride)
        return TakeShortcut(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        // The field has the focus in our place, so it has to go by our name.
        field_->setAccessibleName(accessibleName());
        update();
        // The field itself stays in its editing while a menu or another window is in front.
        if (event->type() == QEvent::FocusOut)
            CommitTyping();
    }
    return QWidget::eventFilter(watched, event);
}

// The keys reach the field alone: it goes by the name of the whole.
void NumberSlider::showEvent(QShowEvent* event) {
    field_->setAccessibleName(accessibleName());
    QWidget::showEvent(event);
}

void NumberSlider::hideEvent(QHideEvent* event) {
    EndSpin();
    EndSteps();
    QWidget::hideEvent(event);
}

void NumberSlider::changeEvent(QEvent* event) {
    // A message box takes the release of the button for itself.
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        EndSpin();
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        EndSpin();
        EndSteps();
        track_->hide();
        update();
    }
    QWidget::changeEvent(event);
}

void NumberSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint place = event->position().toPoint();
    if (OpenRect().contains(place)) {
        track_->OpenAt(*this);
        return;
    }
    for (const int direction : {1, -1})
        if (SpinRect(direction).contains(place)) {
            StartSpin(direction);
            if (spinning_ != 0)
                repeat_.start(kRepeatDelay, this);
        }
}

void NumberSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        EndSpin();
}

void NumberSlider::timerEvent(QTimerEvent* event) {
    if (event->timerId() == pause_.timerId())
        return EndSteps();
    if (event->timerId() != repeat_.timerId())
        return QWidget::timerEvent(event);
    Spin(spinning_);
    repeat_.start(kRepeatInterval, this);
}

// What the field has no use for comes here.
void NumberSlider::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        // A dialog closes by the one that finds nothing to bring back.
        event->setAccepted(typing_ || stepping_);
        typing_ = false;
        if (stepping_)
            ChangeTo(valueBefore_);
        CommitText();
        emit Finished();
        return;
    }
    const bool isUp = event->key() == Qt::Key_Up;
    if (!isUp && event->key() != Qt::Key_Down)
        return QWidget::keyPressEvent(event);
    if (!isUp && (event->modifiers() & Qt::AltModifier)) {
        track_->OpenAt(*this);
        return;
    }
    StepByKey(isUp ? 1 : -1);
}

void NumberSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(isEnabled() ? CurrentTheme().Field : CurrentTheme().Ground);
    painter.setPen(QPen(field_->hasFocus() ? CurrentTheme().Accent : CurrentTheme().Line, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                            kCornerRadius);

    for (const QRect& button : {SpinRect(1), OpenRect()})
        painter.fillRect(isRightToLeft() ? button.right() : button.left(), 4, 1, height() - 8,
                         HairlineColor());

    painter.setPen(Qt::NoPen);
    for (const int direction : {1, -1}) {
        const QPointF middle =
            QRectF(SpinRect(direction)).center() + QPointF(0.5, direction * -0.5);
        const bool canSpin = direction > 0 ? value_ < scale_.MaxValue : value_ > minValue_;
        painter.setBrush(!isEnabled() || !canSpin ? HairlineColor()
                         : spinning_ == direction ? CurrentTheme().Accent
                                                  : CurrentTheme().Text);
        DrawTriangle(painter, middle, direction > 0 ? -4 : 4);
    }
    painter.setPen(QPen(isEnabled() ? CurrentTheme().Text : HairlineColor(), 1.5));
    painter.setBrush(Qt::NoBrush);
    DrawChevron(painter, QRectF(OpenRect()).center() + QPointF(0.5, 0));
}

}  // namespace orbelle::widgets

// What a slider that tells its drags is to assistive tools.
#pragma once

#include <QAccessibleWidget>
#include <algorithm>

namespace orbelle::widgets {

// A value that a tool sets is one drag: pressed, changed, released.
template <typename Slider>
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSlider(Slider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(slider_->value())
                                          : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return slider_->value(); }
    QVariant minimumValue() const override { return slider_->minimum(); }
    QVariant maximumValue() const override { return slider_->maximum(); }
    QVariant minimumStepSize() const override { return slider_->singleStep(); }
    void setCurrentValue(const QVariant& wanted) override {
        const int value = std::clamp(wanted.toInt(), slider_->minimum(), slider_->maximum());
        if (!slider_->isEnabled() || value == slider_->value())
            return;
        slider_->EndRun();
        emit slider_->Pressed();
        slider_->SetValue(value);
        emit slider_->Changed(value);
        emit slider_->Released();
    }

private:
    Slider* slider_;
};

// For all controls of that class. Calling it again is harmless.
template <typename Slider>
void InstallAccessibleSlider() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* slider = qobject_cast<Slider*>(object);
        return slider ? new AccessibleSlider<Slider>(slider) : nullptr;
    });
}

}  // namespace orbelle::widgets

#include "widgets/accessible_track.h"

#include <QAccessibleWidget>
#include <algorithm>

#include "widgets/track_slider.h"

namespace orbelle::widgets {
namespace {

class AccessibleTrack : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleTrack(TrackSlider* slider)
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
    TrackSlider* slider_;
};

QAccessibleInterface* Make(const QString&, QObject* object) {
    auto* slider = qobject_cast<TrackSlider*>(object);
    return slider ? new AccessibleTrack(slider) : nullptr;
}

}  // namespace

void InstallAccessibleTrack() {
    QAccessible::installFactory(Make);
}

}  // namespace orbelle::widgets

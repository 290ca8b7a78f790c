#include "widgets/accessible_parts.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <vector>

namespace orbelle::widgets {
namespace {

class PartInterface : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartInterface(QWidget* control, AccessibleParts* parts, int part)
        : control_(control), parts_(parts), part_(part) {}

    bool isValid() const override { return part_ < parts_->PartCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return control_->window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(control_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return parts_->PartName(part_);
        return kind == QAccessible::Value ? parts_->PartValue(part_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect place = parts_->PartPlace(part_);
        return {control_->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override {
        return isValid() ? parts_->PartRole(part_) : QAccessible::NoRole;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (isValid()) {
            state = parts_->PartState(part_);
            state.focusable = true;
            state.focused = control_->hasFocus() && parts_->FocusedPart() == part_;
            state.invisible = !control_->isVisible();
        } else {
            state.invalid = true;
        }
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (isValid() && action == pressAction())
            parts_->PressPart(part_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QWidget* control_;
    AccessibleParts* parts_;
    int part_;
};

class PartsInterface : public QAccessibleWidget {
public:
    PartsInterface(QWidget* control, AccessibleParts* parts)
        : QAccessibleWidget(control, parts->WholeRole()), parts_(parts) {}
    ~PartsInterface() override {
        for (const QAccessible::Id id : ids_)
            QAccessible::deleteAccessibleInterface(id);
    }

    bool isValid() const override { return widget() != nullptr; }
    int childCount() const override {
        return isValid() ? parts_->PartCount() + static_cast<int>(parts_->WidgetsBeside().size())
                         : 0;
    }
    QAccessibleInterface* child(int part) const override {
        if (part < 0 || part >= childCount())
            return nullptr;
        if (part >= parts_->PartCount())
            return QAccessible::queryAccessibleInterface(
                parts_->WidgetsBeside()[static_cast<std::size_t>(part - parts_->PartCount())]);
        while (static_cast<int>(ids_.size()) <= part)
            ids_.push_back(QAccessible::registerAccessibleInterface(
                new PartInterface(widget(), parts_, static_cast<int>(ids_.size()))));
        return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(part)]);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int part = 0; part < childCount(); ++part)
            if (child(part)->rect().contains(x, y))
                return child(part);
        return nullptr;
    }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int part = 0; part < childCount(); ++part)
            if (child(part) == wanted)
                return part;
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        return isValid() && widget()->hasFocus() ? child(parts_->FocusedPart()) : nullptr;
    }

private:
    AccessibleParts* parts_;
    // The parts shown so far; made when somebody asks, since most runs have no assistive tool.
    mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* parts = dynamic_cast<AccessibleParts*>(object);
    auto* control = qobject_cast<QWidget*>(object);
    return parts && control ? new PartsInterface(control, parts) : nullptr;
}

}  // namespace

void ShowPartsToAssistiveTools() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

namespace {

void Announce(QWidget& control, int part, QAccessible::Event what) {
    if (!QAccessible::isActive() || part < 0)
        return;
    QAccessibleEvent event(&control, what);
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void AnnounceFocus(QWidget& control, int part) {
    Announce(control, part, QAccessible::Focus);
}

void AnnounceName(QWidget& control, int part) {
    Announce(control, part, QAccessible::NameChanged);
}

void AnnounceState(QWidget& control, int part, QAccessible::State changed) {
    if (!QAccessible::isActive() || part < 0)
        return;
    QAccessibleStateChangeEvent event(&control, changed);
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
}

}  // namespace orbelle::widgets

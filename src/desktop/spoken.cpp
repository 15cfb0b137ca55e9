#include "desktop/spoken.h"

#include <QAccessibleWidget>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <variant>
#include <vector>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr auto kRole = "spokenRole";

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  if (!object->isWidgetType()) return nullptr;
  const QVariant role = object->property(kRole);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object),
                               static_cast<QAccessible::Role>(role.toInt()));
}

bool IsNamed(QWidget& widget) {
  if (!widget.accessibleName().isEmpty()) return true;
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken && !spoken->text(QAccessible::Name).isEmpty();
}

}  // namespace

void Means(QWidget& widget, QAccessible::Role role) {
  [[maybe_unused]] static const bool kInstalled = [] {
    QAccessible::installFactory(InterfaceOf);
    return true;
  }();
  widget.setProperty(kRole, static_cast<int>(role));
}

void NameParts(QWidget& widget, const QString& name) {
  for (QWidget* part : widget.findChildren<QWidget*>())
    if ((part->focusPolicy() & Qt::TabFocus) && !IsNamed(*part)) part->setAccessibleName(name);
  widget.setAccessibleName(name);
}

bool NamesItself(ui::Kind kind) {
  return kind == ui::Kind::Label || kind == ui::Kind::Button || kind == ui::Kind::CheckBox ||
         kind == ui::Kind::OptionButton;
}

QString WordsFor(const ui::Drawing& drawing) {
  if (const auto* crest = std::get_if<ui::Crest>(&drawing))
    return "Crest of " + Shown(crest->Initials);
  if (const auto* plate = std::get_if<ui::TitlePlate>(&drawing))
    return "Plate of " + Shown(plate->Name);
  return std::holds_alternative<ui::Portrait>(drawing) ? QString("Portrait") : QString();
}

QString WordsFor(const ui::Chart& chart) {
  QStringList words;
  for (const auto& series : chart.Lines.Get()) {
    std::vector<double> values;
    std::ranges::copy_if(series.Values, std::back_inserter(values),
                         [](double value) { return std::isfinite(value); });
    if (values.empty()) continue;
    const auto [low, high] = std::ranges::minmax(values);
    words << QString("%1: %2 values, %3 to %4, now %5")
                 .arg(series.Name.empty() ? QString("Values") : Shown(series.Name))
                 .arg(values.size())
                 .arg(Shown(chart.Figure(low)), Shown(chart.Figure(high)),
                      Shown(chart.Figure(values.back())));
  }
  return words.isEmpty() ? QString("Nothing to show yet.") : words.join("; ");
}

void Announce(QWidget& widget) {
  QAccessibleEvent event(&widget, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace grapplemont::desktop

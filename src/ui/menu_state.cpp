#include "ui/menu_state.h"

namespace vorlane {

namespace {

// Calls `visit` with the name and the place of each property.
template <typename Properties, typename Visit>
void VisitProperties(Properties&& properties, Visit visit) {
  visit("BackColor", properties.BackColor);
  visit("Enabled", properties.Enabled);
  visit("Font", properties.Font);
  visit("ItemForeColor", properties.ItemForeColor);
  visit("ItemHotBackColor", properties.ItemHotBackColor);
  visit("ItemHotForeColor", properties.ItemHotForeColor);
  visit("LeftPicBackColor", properties.LeftPicBackColor);
  visit("MenuAnimSpeed", properties.MenuAnimSpeed);
  visit("MouseOverSelectionType", properties.MouseOverSelectionType);
  visit("OpenAnimated", properties.OpenAnimated);
  visit("Style", properties.Style);
  visit("UseIcons", properties.UseIcons);
  visit("UseLeftImage", properties.UseLeftImage);
}

MenuProperties Defaults(const QFont& ambientFont) {
  MenuProperties properties;
  properties.Font = ambientFont;
  return properties;
}

}  // namespace

MenuProperties ReadMenuProperties(const QVariantMap& stored, const QFont& ambientFont) {
  MenuProperties properties = Defaults(ambientFont);
  VisitProperties(properties, [&stored]<typename Value>(const char* name, Value& value) {
    if (const auto found = stored.find(QLatin1String(name)); found != stored.end()) {
      value = found->value<Value>();
    }
  });
  return properties;
}

QVariantMap WriteMenuProperties(const MenuProperties& properties, const QFont& ambientFont) {
  QVariantMap unchanged;
  VisitProperties(Defaults(ambientFont), [&unchanged](const char* name, const auto& value) {
    unchanged[QLatin1String(name)] = QVariant::fromValue(value);
  });
  QVariantMap stored;
  VisitProperties(properties, [&](const char* name, const auto& value) {
    const auto variant = QVariant::fromValue(value);
    if (variant != unchanged[QLatin1String(name)]) {
      stored[QLatin1String(name)] = variant;
    }
  });
  return stored;
}

bool MenuItem::IsSeparator() const {
  return Name.compare(QLatin1String("seperator"), Qt::CaseInsensitive) == 0;
}

const MenuItem* MenuState::Chosen() const {
  if (SelectedIndex < 1 || SelectedIndex > static_cast<int>(Items.size())) {
    return nullptr;
  }
  const MenuItem& item = Items[static_cast<std::size_t>(SelectedIndex - 1)];
  return item.Enabled ? &item : nullptr;
}

}  // namespace vorlane

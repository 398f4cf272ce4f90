// Where controls keep their properties, by name.
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace vorlane {

class PropertyStore {
 public:
  virtual ~PropertyStore() = default;

  // The fallback for a property that isn't there.
  virtual QVariant ReadProperty(const QString& name, const QVariant& fallback) = 0;

  // A value that is the fallback needn't be kept.
  virtual void WriteProperty(const QString& name, const QVariant& value,
                             const QVariant& fallback) = 0;
};

// A store in memory, such as the one that holds how a form was designed.
class PropertyBag final : public PropertyStore {
 public:
  PropertyBag() = default;
  explicit PropertyBag(QMap<QString, QVariant> values) : values_(std::move(values)) {}

  QVariant ReadProperty(const QString& name, const QVariant& fallback) override {
    return values_.value(name, fallback);
  }

  void WriteProperty(const QString& name, const QVariant& value,
                     const QVariant& fallback) override {
    if (value == fallback) {
      values_.remove(name);
    } else {
      values_.insert(name, value);
    }
  }

 private:
  QMap<QString, QVariant> values_;
};

}  // namespace vorlane

#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace grapplemont::desktop {

/// Asks the desktop whether it wants dark or light colours and listens when that changes, by the
/// settings that all desktops share. Where nobody answers there is nothing to follow.
class DesktopColours : public QObject {
  Q_OBJECT

 public:
  /// `turned` hears the first answer and every change; never within the constructor.
  explicit DesktopColours(std::function<void(bool dark)> turned);

 public slots:
  /// A setting of the desktop; others than the colours are passed over.
  void Heard(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  std::function<void(bool dark)> turned_;
};

}  // namespace grapplemont::desktop

#include "desktop/desktopcolours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace grapplemont::desktop {

namespace {

const QString kService = "org.freedesktop.portal.Desktop";
const QString kPath = "/org/freedesktop/portal/desktop";
const QString kSettings = "org.freedesktop.portal.Settings";
const QString kGroup = "org.freedesktop.appearance", kKey = "color-scheme";
constexpr uint kPrefersDark = 1, kPrefersLight = 2;

}  // namespace

DesktopColours::DesktopColours(std::function<void(bool dark)> turned) : turned_(std::move(turned)) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(kService, kPath, kSettings, "SettingChanged", this,
              SLOT(Heard(QString, QString, QDBusVariant)));
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kSettings, "Read");
  question << kGroup << kKey;
  auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (!reply.isError()) Heard(kGroup, kKey, reply.value());
    answer->deleteLater();
  });
}

void DesktopColours::Heard(const QString& group, const QString& key, const QDBusVariant& value) {
  if (group != kGroup || key != kKey) return;
  QVariant inside = value.variant();
  // The first answer comes wrapped once more than the changes.
  while (inside.canConvert<QDBusVariant>()) inside = inside.value<QDBusVariant>().variant();
  const uint preference = inside.toUInt();
  if (preference == kPrefersDark || preference == kPrefersLight)
    turned_(preference == kPrefersDark);
}

}  // namespace grapplemont::desktop

#include "desktop/desktopcolours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "desktop/look.h"

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
  // Else Qt does not know the type by its name in the slot, connects nothing and says nothing.
  qRegisterMetaType<QDBusVariant>();
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
  // Desktops with a usual and a dark style have no preference in the usual one, which is light
  // unless its colours say otherwise.
  const uint preference = inside.toUInt();
  turned_(preference == kPrefersDark || (preference != kPrefersLight && BeganDark()));
}

}  // namespace grapplemont::desktop

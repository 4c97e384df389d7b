#include "platform/forms/notification.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>

#include <chrono>

#include "platform/forms/form.h"
#include "platform/system/application.h"
#include "platform/system/text.h"

namespace forms {

namespace {

void send(const std::string& text) {
  if (QGuiApplication::applicationState() == Qt::ApplicationActive) return;
  QApplication::alert(Form::active());
  // Without an address, Qt would start a bus of its own.
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return;
  QDBusMessage message = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.Notifications"),
      QStringLiteral("/org/freedesktop/Notifications"),
      QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
  constexpr uint kReplacesNone = 0;
  constexpr int kUsualTime = -1;
  message << sys::shown(sys::App.Title) << kReplacesNone << QStringLiteral("raster-mill")
          << sys::shown(sys::App.Title) << sys::shown(text) << QStringList() << QVariantMap()
          << kUsualTime;
  QDBusConnection::sessionBus().send(message);
}

}  // namespace

void notify(const std::string& text) {
  // Qt takes a moment to believe that the focus has left.
  constexpr std::chrono::milliseconds kDoubt(600);
  QTimer::singleShot(kDoubt, qApp, [text] { send(text); });
}

}  // namespace forms

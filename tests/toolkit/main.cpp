#include <QApplication>
#include <QString>
#include <QtGlobal>
#include <cstdio>

#include <gtest/gtest.h>

namespace {

/// The toolkit warns where it is used wrongly ("QPainter::begin: ..."): that fails the test. What
/// the platform without a screen cannot do is no news.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
  const bool misuse = text.startsWith(u'Q') && text.contains(QLatin1String("::"));
  if (type != QtDebugMsg && type != QtInfoMsg && misuse) ADD_FAILURE() << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  qInstallMessageHandler(TakeMessage);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

#include "desktop/layershell/RepeatedMessageFilter.h"

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace brimly {
namespace {

QStringList said;

void keep(QtMsgType, const QMessageLogContext&, const QString& message) {
  said << message;
}

class RepeatedMessageFilterTest : public ::testing::Test {
 protected:
  RepeatedMessageFilterTest() { before_ = qInstallMessageHandler(keep); }
  ~RepeatedMessageFilterTest() override {
    qInstallMessageHandler(before_);
    said.clear();
  }

 private:
  QtMessageHandler before_;
};

TEST_F(RepeatedMessageFilterTest, ARepeatIsSaidOnce) {
  {
    const RepeatedMessageFilter filter;
    qWarning("The compositor went away.");
    qWarning("The compositor went away.");
  }
  EXPECT_EQ(said, QStringList{"The compositor went away."});
}

TEST_F(RepeatedMessageFilterTest, OnlyARepeatOfTheLineJustBeforeIsDropped) {
  {
    const RepeatedMessageFilter filter;
    qWarning("one");
    qWarning("two");
    qWarning("one");
  }
  EXPECT_EQ(said, (QStringList{"one", "two", "one"}));
}

TEST_F(RepeatedMessageFilterTest, GoneItPutsTheHandlerBeforeBack) {
  { const RepeatedMessageFilter filter; }
  qWarning("again");
  qWarning("again");
  EXPECT_EQ(said, (QStringList{"again", "again"}));
}

}  // namespace
}  // namespace brimly

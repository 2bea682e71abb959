#include <gtest/gtest.h>

#include <QObject>
#include <atomic>
#include <thread>

#include "tests/kit/TraceCollector.h"

namespace {

QString traced(const QVariant& value) {
  const TraceCollector watch;
  MVRNSInfoFuncTraceIMPL("Test", Q_FUNC_INFO, "%@", value);
  return watch.lastText();
}

}  // namespace

TEST(KZTrace, NamesTheMethodOfEveryKindOfFunction) {
  const std::pair<const char*, const char*> rows[] = {
      {"void KZPreference::showAppPreference(const Dictionary&)", "KZPreference::showAppPreference"},
      {"KZPreference::KZPreference(QObject*)", "KZPreference::KZPreference"},
      {"virtual KZPreference::~KZPreference()", "KZPreference::~KZPreference"},
      {"static KZPreference& KZPreference::sharedInstance()", "KZPreference::sharedInstance"},
      {"virtual const QMap<int, std::pair<A, B> >& Pane::rows(int) const", "Pane::rows"},
      {"const char *Pane::name() const", "Pane::name"},
      {"void Cache<std::pair<int, int> >::add(T) [with T = std::pair<int, int>]",
       "Cache<std::pair<int, int> >::add"},
      {"bool Item::operator==(const Item&) const", "Item::operator=="},
      {"bool Item::operator<(const Item&) const", "Item::operator<"},
      {"void Item::operator()(int) const", "Item::operator()"},
      {"Item::operator bool() const", "Item::operator bool"},
      {"Pane::start(int)::<lambda(const QString&)>", "Pane::start"},
      {"auto Pane::start()::(anonymous class)::operator()() const", "Pane::start"},
      {"void {anonymous}::Helper::run(std::function<void(int)>)", "Helper::run"},
      {"void (anonymous namespace)::Helper::run()", "Helper::run"},
      {"(anonymous namespace)::Helper::Helper()", "Helper::Helper"},
      {"void {anonymous}::freeFunction()", "freeFunction"},
      {"decltype (f(1)) Pane::decided()", "Pane::decided"},
      {"main", "main"},
      {"", ""},
  };
  for (const auto& [info, name] : rows) EXPECT_EQ(kzMethodName(info).toStdString(), name) << info;
}

TEST(KZTrace, PrintsEachKindOfValue) {
  QObject object;
  const std::pair<QVariant, QString> rows[] = {
      {QVariant(), "(null)"},
      {QString(), "(null)"},
      {QString(""), ""},
      {QString("as \"it\" is"), "as \"it\" is"},
      {QByteArray("abc"), "<3 bytes>"},
      {true, "true"},
      {qlonglong{1} << 60, "1152921504606846976"},
      {Dictionary(), "{}"},
      {Dictionary{{"b", QByteArray(2, 'x')}, {"n", QVariant()}, {"l", QVariantList{1, true, 1.5, "t"}}},
       R"json({"b":"<2 bytes>","l":[1,true,1.5,"t"],"n":"(null)"})json"},
      {QString(1001, 'x'), QString(1000, 'x') + "… (1001 characters)"},
      {QString(999, 'x') + "\U0001F600" + "y", QString(999, 'x') + "… (1002 characters)"},
  };
  for (const auto& [value, text] : rows) EXPECT_EQ(traced(value), text) << text.toStdString();
  EXPECT_TRUE(traced(QVariant::fromValue(&object)).startsWith("<QObject 0x"));
}

TEST(KZTrace, FormatsByDirectiveAndNamesTheMethodInBothForms) {
  const TraceCollector watch;
  const void* nullObject = nullptr;
  MVRNSErrorFuncTraceIMPL("Test", "void A::b(int)", "flag:%d text:%@, delegate:%@, c:%s.", true,
                          QString("100%d"), nullObject, "é");
  MVRNSWarningTraceIMPL("Test", "%s, number:%d", "void A::c()", 42);
  const QObject object;
  MVRNSInfoFuncTraceIMPL("Test", {&object, "void n::A::d(int)"}, "");
  const auto records = watch.records();
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[2].method, "QObject::d");
  EXPECT_EQ(records[0].text, "flag:1 text:100%d, delegate:(null), c:é.");
  EXPECT_EQ(records[0].method, "A::b");
  EXPECT_EQ(records[0].level, KZTraceLevel::Error);
  EXPECT_EQ(records[1].text, "A::c, number:42");
  EXPECT_EQ(records[1].method, "A::c");
}

TEST(KZTrace, KeepsARecordOnOneLineOfStandardError) {
  setKZTraceSink({});
  testing::internal::CaptureStderr();
  MVRNSInfoFuncTraceIMPL("Test", "void A::b()", "%@", QString("one\r\ntwo"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "info [Test] A::b one\\r\\ntwo\n");
}

TEST(KZTrace, FormatsNothingWhileMuted) {
  muteKZTrace();
  EXPECT_FALSE(kztrace::isEnabled());
  testing::internal::CaptureStderr();
  MVRNSInfoFuncTraceIMPL("Test", "void A::b()", "unheard");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(traced(1), "1");
}

TEST(KZTrace, LetsASinkTraceAndReplaceItselfWhileOthersTrace) {
  std::atomic<int> received = 0;
  setKZTraceSink([&](const KZTraceRecord& record) {
    ++received;
    if (record.text == "nested") return;
    MVRNSInfoFuncTraceIMPL("Test", "void A::b()", "nested");
  });
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([] {
      for (int turn = 0; turn < 200; ++turn) MVRNSInfoFuncTraceIMPL("Test", "void A::b()", "%d", turn);
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(received, 2 * 4 * 200);
  setKZTraceSink([](const KZTraceRecord&) { muteKZTrace(); });
  MVRNSInfoFuncTraceIMPL("Test", "void A::b()", "last");
  EXPECT_FALSE(kztrace::isEnabled());
  setKZTraceSink({});
}

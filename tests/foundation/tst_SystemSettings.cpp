#include "foundation/SystemSettings.h"

#include <QTest>

#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;
using namespace mduLib;

namespace {

const QString Desktop = u"Control Panel\\Desktop"_s;

/// A store that tells what is written, in order.
struct WritingSettings final : platform::SettingsStore {
    QMap<QString, QVariant> Kept;
    QStringList Log;
    bool Full = false;
    QVariant Value(const QString& key, const QString& name) const override {
        return Kept.value(key + u'|' + name);
    }
    bool SetValue(const QString& key, const QString& name, const QVariant& value) override {
        Log += name + u'=' + value.toString();
        if (!Full) {
            Kept[key + u'|' + name] = value;
        }
        return !Full;
    }
    void Remove(const QString& key, const QString& name) override {
        Kept.remove(key + u'|' + name);
    }
};

}  // namespace

class tst_SystemSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OffersTimes() {
        WritingSettings store;
        store.SetValue(Desktop, u"SCRNSAVE.EXE"_s, u"/other"_s);
        const QStringList times = {u"10"_s, u"20"_s, u"30"_s, u"40"_s,  u"50"_s,  u"60"_s,
                                   u"70"_s, u"80"_s, u"90"_s, u"100"_s, u"110"_s, u"120"_s};
        QCOMPARE(ScreenSaverTimes(store, u"/ours"_s), times);
        QCOMPARE(ScreenSaverTimes(store, u"/other"_s), QStringList(u"Disabled"_s));
    }

    void ATimeMakesItTheScreenSaver() {
        WritingSettings store;
        QVERIFY(ChooseScreenSaverTime(store, u"30"_s, u"/ours"_s));
        QCOMPARE(store.Log, QStringList({u"SCRNSAVE.EXE=/ours"_s, u"ScreenSaveTimeOut=30"_s,
                                         u"ScreenSaveActive=1"_s, u"ScreenSaveTimeZone="_s,
                                         u"ScreenSaveWithLock=0"_s}));
        QCOMPARE(CurrentScreenSaver(store), u"/ours"_s);
        QCOMPARE(ScreenSaverTimeOut(store), u"30"_s);
    }

    void DisabledTakesItAway() {
        WritingSettings store;
        ChooseScreenSaverTime(store, u"30"_s, u"/ours"_s);
        store.Log.clear();
        QVERIFY(ChooseScreenSaverTime(store, u"Disabled"_s, u"/ours"_s));
        QCOMPARE(store.Log,
                 QStringList({u"SCRNSAVE.EXE="_s, u"ScreenSaveTimeOut=0"_s, u"ScreenSaveActive=1"_s,
                              u"ScreenSaveTimeZone="_s, u"ScreenSaveWithLock=0"_s}));
        QCOMPARE(CurrentScreenSaver(store), QString());
    }

    void StoresALockAndAZone() {
        WritingSettings store;
        SetScreenSaver(store, {u"/ours"_s, u"UTC"_s, 5, 1});
        QCOMPARE(store.Log.mid(3),
                 QStringList({u"ScreenSaveTimeZone=UTC"_s, u"ScreenSaveWithLock=1"_s}));
    }

    void TellsWhatCantBeKept() {
        WritingSettings store;
        store.Full = true;
        QVERIFY(!ChooseScreenSaverTime(store, u"30"_s, u"/ours"_s));
        QCOMPARE(store.Log.size(), 5);
        QVERIFY(!AddToRunKey(store, u"Tempolark"_s, u"x"_s));
        QVERIFY(!RemoveFromRunKey(store, u"Tempolark"_s));
    }

    void StartsWithTheLogon() {
        WritingSettings store;
        QVERIFY(!IsInRunKey(store, u"Tempolark UTC"_s));
        QVERIFY(AddToRunKey(store, u"Tempolark UTC"_s, u"C:\\Tempolark.exe UTC"_s));
        QVERIFY(IsInRunKey(store, u"Tempolark UTC"_s));
        QVERIFY(!IsInRunKey(store, u"Tempolark"_s));
        QCOMPARE(
            store.Value(u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"Tempolark UTC"_s)
                .toString(),
            u"C:\\Tempolark.exe UTC"_s);
        QVERIFY(RemoveFromRunKey(store, u"Tempolark UTC"_s));
        QVERIFY(!IsInRunKey(store, u"Tempolark UTC"_s));
        QVERIFY(store.Kept.contains(
            u"Software\\Microsoft\\Windows\\CurrentVersion\\Run|Tempolark UTC"_s));
    }

    void TheFolderIsWrittenOnce() {
        WritingSettings store;
        RecordProgramFolder(store, u"/clocks"_s);
        RecordProgramFolder(store, u"/clocks"_s);
        QCOMPARE(store.Log, QStringList(u"AppFolder=/clocks"_s));
        QCOMPARE(store.Value(u"TempolarkAgent/Setting"_s, u"AppFolder"_s).toString(), u"/clocks"_s);
        RecordProgramFolder(store, u"/moved"_s);
        QCOMPARE(store.Log.last(), u"AppFolder=/moved"_s);
    }
};

QTEST_APPLESS_MAIN(tst_SystemSettings)
#include "tst_SystemSettings.moc"

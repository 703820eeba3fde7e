#include "platform/FileSettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A folder for the file of the settings.
struct Store {
    QTemporaryDir Folder;
    QString Path = Folder.filePath(u"Settings.ini"_s);
};

}  // namespace

class tst_FileSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AValueIsFoundAgain() {
        const Store store;
        QVERIFY(platform::FileSettings(store.Path).SetValue(u"Bars"_s, u"ann"_s, u"1,2"_s));
        const platform::FileSettings again(store.Path);
        QCOMPARE(again.Value(u"Bars"_s, u"ann"_s), QVariant(u"1,2"_s));
        QVERIFY(!again.Value(u"Bars"_s, u"bob"_s).isValid());
        QVERIFY(!again.Value(u"Tools"_s, u"ann"_s).isValid());
        QVERIFY(QFile::exists(store.Path));
    }

    void ANewValueTakesThePlaceOfTheOld() {
        const Store store;
        platform::FileSettings settings(store.Path);
        QVERIFY(settings.SetValue(u"Bars"_s, u"ann"_s, u"old"_s));
        QVERIFY(settings.SetValue(u"Bars"_s, u"ann"_s, u"new"_s));
        QCOMPARE(settings.Value(u"Bars"_s, u"ann"_s), QVariant(u"new"_s));
    }

    void WhatIsRemovedIsGone() {
        const Store store;
        platform::FileSettings settings(store.Path);
        QVERIFY(settings.SetValue(u"Bars"_s, u"ann"_s, u"1"_s));
        QVERIFY(settings.SetValue(u"Bars"_s, u"bob"_s, u"2"_s));
        settings.Remove(u"Bars"_s, u"ann"_s);
        settings.Remove(u"Bars"_s, u"nobody"_s);
        QVERIFY(!settings.Value(u"Bars"_s, u"ann"_s).isValid());
        QCOMPARE(settings.Value(u"Bars"_s, u"bob"_s), QVariant(u"2"_s));
    }

    // A file stands where the folder would have to be: nobody's rights let one be made there.
    void WhatCantBeWrittenIsTold() {
        const Store store;
        QFile inTheWay(store.Path);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        platform::FileSettings settings(store.Path + u"/Settings.ini"_s);
        QVERIFY(!settings.SetValue(u"Bars"_s, u"ann"_s, u"1,2"_s));
        QCOMPARE(inTheWay.size(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_FileSettings)
#include "tst_FileSettings.moc"

#include "support/FakeServices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "platform/AbsentDevices.h"
#include "platform/Accounts.h"
#include "support/FakeDialogs.h"
#include "support/FakeHelp.h"
#include "support/FakeRandom.h"
#include "support/FakeSettings.h"

using namespace Qt::StringLiterals;

struct FakeServices::Parts {
    explicit Parts(FakeServices& machine)
        : Settings(machine.Folder.filePath(u"Settings.ini"_s)),
          Services(Devices
                       .Beside(machine.Clock, machine.Zones, machine.Files, User, Settings, Dialogs,
                               Random)
                       .With(Help)) {}

    platform::NamedAccount User{u"tester"_s};
    FakeSettings Settings;
    platform::AbsentDevices Devices;
    FakeDialogs Dialogs;
    FakeHelp Help;
    FakeRandom Random;
    platform::Services Services;
};

FakeServices::FakeServices()
    : Clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC), QTimeZone("UTC")),
      parts_(std::make_unique<Parts>(*this)),
      User(parts_->User),
      Settings(parts_->Settings),
      Dialogs(parts_->Dialogs),
      Help(parts_->Help),
      Random(parts_->Random),
      Services(parts_->Services) {}

FakeServices::~FakeServices() = default;

QString FakeServices::WriteFile(const QString& relativePath, const QByteArray& content) {
    const QString path = Folder.filePath(relativePath);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("the test can't write %s", qPrintable(path));
    }
    return path;
}

QByteArray FakeServices::ReadFile(const QString& relativePath) const {
    QFile file(Folder.filePath(relativePath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FakeServices::SetAge(const QString& relativePath, int seconds) {
    QFile file(Folder.filePath(relativePath));
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-seconds),
                          QFileDevice::FileModificationTime)) {
        qFatal("the test can't set the time of %s", qPrintable(relativePath));
    }
}

#include <QTest>

#include "shell/StartOnce.h"
#include "support/FakeOneProgram.h"

using namespace Qt::StringLiterals;
using Role = platform::OneProgram::Role;

class tst_StartOnce : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EndsByItsRole_data() {
        QTest::addColumn<Role>("role");
        QTest::addColumn<int>("status");  // -1: it goes on
        QTest::addColumn<QStringList>("complaints");
        QTest::newRow("alone") << Role::Alone << -1 << QStringList();
        QTest::newRow("handed over") << Role::HandedOver << 0 << QStringList();
        QTest::newRow("refused") << Role::Refused << 1 << QStringList{u"it hangs"_s};
    }

    void EndsByItsRole() {
        QFETCH(Role, role);
        FakeOneProgram program;
        program.Answer = {role, role == Role::Refused ? u"it hangs"_s : QString()};
        QStringList complaints;
        const std::optional<int> status =
            shell::StartOnce(program, u"UTC"_s, [&](const QString& text) { complaints += text; });
        QTEST(status.value_or(-1), "status");
        QTEST(complaints, "complaints");
        QCOMPARE(program.CommandLines, QStringList{u"UTC"_s});
    }
};

QTEST_GUILESS_MAIN(tst_StartOnce)
#include "tst_StartOnce.moc"

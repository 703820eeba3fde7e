#include <QTest>

#include "drawing/LabelMotion.h"
#include "support/FakeFace.h"

using drawing::AnimateLabels;
using drawing::LabelMotion;
using drawing::LabelStep;
using drawing::LabelSteps;
using drawing::Motion;

namespace {

std::vector<double> Tops(const LabelStep& step) {
    std::vector<double> tops;
    for (const LabelStep::Place& place : step.Places) {
        tops.push_back(static_cast<double>(place.Top));
    }
    return tops;
}

std::vector<int> Delays(const LabelSteps& steps) {
    std::vector<int> delays;
    for (const LabelStep& step : steps) {
        delays.push_back(step.Delay);
    }
    return delays;
}

bool AreNear(const std::vector<double>& values, const std::vector<double>& expected) {
    const auto isNear = [](double a, double b) { return std::abs(a - b) < 0.0005; };
    return std::equal(values.begin(), values.end(), expected.begin(), expected.end(), isNear);
}

/// Label 1 to 10, then label 2 to 20, then both to 5.
LabelSteps ThreeSteps() {
    return {{80, {{1, 10}}}, {80, {{2, 20}}}, {3, {{1, 5}, {2, 5}}}};
}

}  // namespace

class tst_LabelMotion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Mode0SetsTheBase();
    void Mode1MovesOneLabelAStep();
    void Mode1ReturnsToTheBase();
    void Mode2IsRandom();
    void Mode3IsOneSine();
    void Mode4IsAWave();
    void OtherModesMoveNothing();
    void SeedsOnEntry();
    void PlaysByTheClock();
    void PlaysTheFirstStepAtOnce();
    void PlaysOverdueStepsTogether();
    void KeepsItsTimesWhenOneStepIsLate();
    void FinishesAtOnce();
    void FinishesBeforeTheNext();
    void EndsAtOnceUnseen();
    void EndsWhenTheWindowIsHidden();
    void PlaysAnEmptyMotion();
};

void tst_LabelMotion::Mode0SetsTheBase() {
    FakeRandom random;
    const LabelSteps steps = AnimateLabels(3, 7.5, 60, 80, Motion::Rest, random);
    const LabelSteps expected = {{0, {{1, 7.5F}, {2, 7.5F}, {3, 7.5F}}}};
    QVERIFY(steps == expected);
}

void tst_LabelMotion::Mode1MovesOneLabelAStep() {
    FakeRandom random;
    const LabelSteps steps = AnimateLabels(6, 100, 60, 80, Motion::Arc, random);
    QCOMPARE(Delays(steps), std::vector<int>(6, 80));
    const std::vector<double> tops = {127.515, 97.1692, 67.5819, 46.6809, 40.0668, 49.5117};
    for (std::size_t i = 0; i < 6; ++i) {
        QCOMPARE(steps[i].Places.size(), 1U);
        QCOMPARE(steps[i].Places[0].Label, static_cast<int>(i) + 1);
        QVERIFY(AreNear(Tops(steps[i]), {tops[i]}));
    }
}

void tst_LabelMotion::Mode1ReturnsToTheBase() {
    FakeRandom random;
    const LabelSteps expected = {{3, {{1, 100}}}, {3, {{2, 100}}}};
    QVERIFY(AnimateLabels(2, 100, 0, 3, Motion::Arc, random) == expected);
}

void tst_LabelMotion::Mode2IsRandom() {
    FakeRandom random;
    random.Numbers = {0.5, 0.25, 0};
    const LabelSteps expected = {{0, {{1, 130}, {2, 115}, {3, 100}}}};
    QVERIFY(AnimateLabels(3, 100, 60, 80, Motion::Scatter, random) == expected);
}

void tst_LabelMotion::Mode3IsOneSine() {
    FakeRandom random;
    const LabelSteps steps = AnimateLabels(2, 100, 30, 1, Motion::Sine, random);
    QCOMPARE(Delays(steps), std::vector<int>(51, 1));
    const std::vector<std::pair<std::size_t, double>> tops = {
        {0, 100},       {1, 96.24},     {12, 70.0592},  {13, 70.0592}, {25, 100},
        {26, 103.7600}, {37, 129.9408}, {38, 129.9408}, {50, 100}};
    for (const auto& [index, top] : tops) {
        QVERIFY(AreNear(Tops(steps[index]), {top, top}));
    }
}

void tst_LabelMotion::Mode4IsAWave() {
    FakeRandom random;
    const LabelSteps steps = AnimateLabels(6, 100, 20, 0, Motion::Wave, random);
    QCOMPARE(steps.size(), 50U);
    QCOMPARE(steps[0].Delay, 0);
    for (std::size_t i = 1; i < steps.size(); ++i) {
        QCOMPARE(steps[i].Delay, 1);
    }
    QVERIFY(AreNear(Tops(steps[0]), {118.4327, 115.9442, 97.5262, 81.5797, 84.0366, 102.4422}));
    QVERIFY(AreNear(Tops(steps[1]), {119.2597, 114.3061, 95.0595, 80.7489, 85.6717, 104.9096}));
    QVERIFY(AreNear(Tops(steps[24]), {82.7008, 82.653, 99.9363, 117.2832, 117.3628, 100.0956}));
    QVERIFY(AreNear(Tops(steps[49]), {117.2832, 117.3628, 100.0956, 82.7328, 82.6214, 99.8726}));
}

void tst_LabelMotion::OtherModesMoveNothing() {
    FakeRandom random;
    QVERIFY(AnimateLabels(6, 100, 20, 1, static_cast<Motion>(5), random).empty());
    QVERIFY(AnimateLabels(6, 100, 20, 1, static_cast<Motion>(-1), random).empty());
}

void tst_LabelMotion::SeedsOnEntry() {
    FakeRandom random;
    for (int mode = 0; mode <= 4; ++mode) {
        AnimateLabels(6, 100, 20, 1, static_cast<Motion>(mode), random);
        QCOMPARE(random.Seeds, mode + 1);
    }
}

void tst_LabelMotion::PlaysByTheClock() {
    FakeFace face;
    mduUILib::ControlArray& labels = face.Controls.lblDigitalNumber;
    LabelMotion motion(labels, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    face.Machine.Clock.Advance(79);
    QCOMPARE(labels(1).Top, 0.0F);
    face.Machine.Clock.Advance(1);
    QCOMPARE(labels(1).Top, 10.0F);
    QCOMPARE(labels(2).Top, 0.0F);
    QCOMPARE(face.Window.Shows, 1);
    face.Machine.Clock.Advance(80);
    QCOMPARE(labels(2).Top, 20.0F);
    face.Machine.Clock.Advance(2);
    QCOMPARE(labels(1).Top, 10.0F);
    face.Machine.Clock.Advance(1);
    QCOMPARE(labels(1).Top, 5.0F);
    QCOMPARE(labels(2).Top, 5.0F);
    face.Machine.Clock.Advance(5000);
    QCOMPARE(face.Window.Shows, 3);
}

// The pass that begins a motion shows what is due at once.
void tst_LabelMotion::PlaysTheFirstStepAtOnce() {
    FakeFace face;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    motion.Play({{0, {{1, 10}}}, {1, {{1, 20}}}});
    QCOMPARE(face.Controls.lblDigitalNumber(1).Top, 10.0F);
    QCOMPARE(face.Window.Shows, 0);
    face.Machine.Clock.Advance(1);
    QCOMPARE(face.Controls.lblDigitalNumber(1).Top, 20.0F);
    QCOMPARE(face.Window.Shows, 1);
}

void tst_LabelMotion::PlaysOverdueStepsTogether() {
    FakeFace face;
    mduUILib::ControlArray& labels = face.Controls.lblDigitalNumber;
    LabelMotion motion(labels, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    face.Machine.Clock.SetNow(face.Machine.Clock.Now().addMSecs(162));
    face.Machine.Clock.Advance(0);
    QCOMPARE(labels(1).Top, 10.0F);
    QCOMPARE(labels(2).Top, 20.0F);
    QCOMPARE(face.Window.Shows, 1);
    face.Machine.Clock.Advance(1);
    QCOMPARE(labels(1).Top, 5.0F);
    QCOMPARE(face.Window.Shows, 2);
}

void tst_LabelMotion::KeepsItsTimesWhenOneStepIsLate() {
    FakeFace face;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    face.Machine.Clock.SetNow(face.Machine.Clock.Now().addMSecs(100));
    face.Machine.Clock.Advance(0);
    face.Machine.Clock.Advance(59);
    QCOMPARE(face.Controls.lblDigitalNumber(2).Top, 0.0F);
    face.Machine.Clock.Advance(1);
    QCOMPARE(face.Controls.lblDigitalNumber(2).Top, 20.0F);
}

void tst_LabelMotion::FinishesAtOnce() {
    FakeFace face;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    QVERIFY(!motion.Finish());
    motion.Play(ThreeSteps());
    QVERIFY(motion.Finish());
    QCOMPARE(face.Controls.lblDigitalNumber(1).Top, 5.0F);
    QCOMPARE(face.Controls.lblDigitalNumber(2).Top, 5.0F);
    QVERIFY(!motion.Finish());
    face.Machine.Clock.Advance(5000);
    QCOMPARE(face.Window.Shows, 0);
}

void tst_LabelMotion::FinishesBeforeTheNext() {
    FakeFace face;
    mduUILib::ControlArray& labels = face.Controls.lblDigitalNumber;
    LabelMotion motion(labels, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    face.Machine.Clock.Advance(80);
    motion.Play({{80, {{1, 40}}}});
    QCOMPARE(labels(1).Top, 5.0F);
    QCOMPARE(labels(2).Top, 5.0F);
    face.Machine.Clock.Advance(79);
    QCOMPARE(labels(1).Top, 5.0F);
    face.Machine.Clock.Advance(1);
    QCOMPARE(labels(1).Top, 40.0F);
}

void tst_LabelMotion::EndsAtOnceUnseen() {
    FakeFace face;
    face.Window.Seen = false;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    QCOMPARE(face.Controls.lblDigitalNumber(2).Top, 5.0F);
    face.Machine.Clock.Advance(5000);
    QCOMPARE(face.Window.Shows, 0);
}

void tst_LabelMotion::EndsWhenTheWindowIsHidden() {
    FakeFace face;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    motion.Play(ThreeSteps());
    face.Window.Seen = false;
    face.Machine.Clock.Advance(80);
    QCOMPARE(face.Controls.lblDigitalNumber(2).Top, 5.0F);
    QVERIFY(!motion.Finish());
}

void tst_LabelMotion::PlaysAnEmptyMotion() {
    FakeFace face;
    LabelMotion motion(face.Controls.lblDigitalNumber, face.Window, face.Machine.Clock);
    motion.Play({});
    face.Machine.Clock.Advance(5000);
    QCOMPARE(face.Window.Shows, 0);
}

QTEST_MAIN(tst_LabelMotion)
#include "tst_LabelMotion.moc"

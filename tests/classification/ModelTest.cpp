// The rules of classification without a form.
#include <random>

#include "datadialogs/Classification.h"
#include "tests/classification/ClassifyTest.h"

namespace orx::test {
namespace {

Classification Model(std::int32_t method, double minimum, double maximum, std::int32_t classes) {
  Classification model;
  model.Method = method;
  model.Minimum = minimum;
  model.Maximum = maximum;
  model.ClassCount = classes;
  return model;
}

Classification::Find Giving(RecordedData& data) {
  return [&data] { return &data; };
}

TEST(ClassificationModel, EqualIntervalsDivideTheRange) {
  for (const std::int32_t method : {classifymethod::kEqualIntervals, classifymethod::kUserDefined}) {
    Classification model = Model(method, 0, 100, 4);
    model.FitStep();
    EXPECT_EQ(model.Step, 25);
    EXPECT_EQ(model.Maximum, 100);
  }
}

TEST(ClassificationModel, WithoutClassesTheStepIsTheWholeRange) {
  Classification model = Model(classifymethod::kEqualIntervals, 10, 30, 0);
  model.FitStep();
  EXPECT_EQ(model.Step, 20);
  model = Model(classifymethod::kEqualSteps, 10, 30, 0);
  model.FitStep();
  EXPECT_EQ(model.Step, 20);
  EXPECT_EQ(model.Maximum, 10);
}

TEST(ClassificationModel, EqualStepsMoveTheMaximum) {
  Classification model = Model(classifymethod::kEqualSteps, 10, 999, 4);
  model.Step = 2.5;
  model.FitStep();
  EXPECT_EQ(model.Maximum, 20);
  EXPECT_EQ(model.Step, 2.5);
}

TEST(ClassificationModel, AStepThatIsNotPositiveIsTakenFromTheRange) {
  for (const double step : {0.0, -3.0}) {
    Classification model = Model(classifymethod::kEqualSteps, 0, 100, 4);
    model.Step = step;
    model.FitStep();
    EXPECT_EQ(model.Step, 25);
    EXPECT_EQ(model.Maximum, 100);
  }
}

TEST(ClassificationModel, OtherMethodsComputeNothing) {
  for (const std::int32_t method : {classifymethod::kAutomatic, 3, -1}) {
    Classification model = Model(method, 0, 100, 4);
    model.Step = 7;
    model.FitStep();
    EXPECT_EQ(model.Step, 7);
    EXPECT_EQ(model.Maximum, 100);
  }
}

TEST(ClassificationModel, ARangeMovesWhenAnEndPassesTheOther) {
  Classification model = Model(classifymethod::kEqualIntervals, 10, 20, 1);
  model.MoveMaximum(5);
  EXPECT_EQ(model.Minimum, -5);
  EXPECT_EQ(model.Maximum, 5);
  model = Model(classifymethod::kEqualIntervals, 10, 20, 1);
  model.MoveMinimum(25);
  EXPECT_EQ(model.Minimum, 25);
  EXPECT_EQ(model.Maximum, 35);
  model.MoveMinimum(35);
  EXPECT_EQ(model.Maximum, 45);
}

TEST(ClassificationModel, AnEndWithinTheRangeMovesAlone) {
  Classification model = Model(classifymethod::kEqualIntervals, 10, 20, 1);
  model.MoveMinimum(19);
  model.MoveMaximum(19.5);
  EXPECT_EQ(model.Minimum, 19);
  EXPECT_EQ(model.Maximum, 19.5);
}

TEST(ClassificationModel, FormatsAreFoundWhateverTheirCaseAndBlanks) {
  EXPECT_EQ(IndexOfFormat("General"), 0);
  EXPECT_EQ(IndexOfFormat("  gEnErAl "), 0);
  EXPECT_EQ(IndexOfFormat(" 0.00"), 3);
  EXPECT_EQ(IndexOfFormat("0.0000e+000"), 9);
  EXPECT_EQ(IndexOfFormat("#,###,##0.0"), 11);
  EXPECT_EQ(IndexOfFormat("0.000000"), 0);
  EXPECT_EQ(IndexOfFormat(""), 0);
}

TEST(ClassificationModel, SavingWhatWasReadWritesNothing) {
  RecordedData data;
  for (const std::int32_t method : {0, 1, 3, 6, 7}) {
    data.Method = method;
    data.Maximum = 1.0 / 3;
    data.Step = data.Maximum / data.Classes * (1 + 1e-16);
    Classification model;
    model.ReadFrom(Giving(data));
    model.FitStep();
    EXPECT_FALSE(model.SaveTo(Giving(data))) << method;
  }
  EXPECT_EQ(data.Writes(), Calls{});
}

TEST(ClassificationModel, AMaximumThatTheHostRoundsOtherwiseStaysUntilSomethingIsChanged) {
  RecordedData data;
  data.Method = classifymethod::kEqualSteps;
  data.Step = 0.1;
  data.Classes = 3;
  data.Minimum = 0;
  data.Maximum = 0.3;
  ASSERT_NE(3 * data.Step, data.Maximum);
  Classification model;
  model.ReadFrom(Giving(data));
  model.FitStep();
  EXPECT_FALSE(model.SaveTo(Giving(data)));
  EXPECT_EQ(data.Maximum, 0.3);
  model.ValueFormat = "0";
  EXPECT_TRUE(model.SaveTo(Giving(data)));
  EXPECT_EQ(data.Maximum, 3 * data.Step);
  EXPECT_EQ(data.Format, "0");
}

/// Whatever a user does in the dialog, as the model sees it.
void EditAtRandom(Classification& model, SavedClassification& saved, std::mt19937& random) {
  const auto number = [&] { return std::uniform_real_distribution<double>(-100, 100)(random); };
  switch (random() % 8) {
    case 0:
      return model.MoveMinimum(number());
    case 1:
      return model.MoveMaximum(number());
    case 2:
      return model.ChangeStep(number());
    case 3:
      model.ClassCount = 1 + static_cast<std::int32_t>(random() % 255);
      return;
    case 4:
      model.Method = std::array{0, 6, 7}[random() % 3];
      return;
    case 5:
      return saved.GoAutomatic(model, -5, 500);
    case 6:
      return saved.GoBack(model);
    default:
      return model.TakeDefault(-5, 500);
  }
}

TEST(ClassificationModel, RandomEditsKeepStepAndRangeInLine) {
  std::mt19937 random(20);
  for (int run = 0; run < 500; ++run) {
    RecordedData data;
    Classification model;
    SavedClassification saved{0, 4};
    model.ReadFrom(Giving(data));
    for (int edit = 0; edit < 30; ++edit) {
      EditAtRandom(model, saved, random);
      model.FitStep();
      if (model.IsAutomatic()) continue;
      EXPECT_LT(model.Minimum, model.Maximum);
      EXPECT_GT(model.Step, 0);
      EXPECT_NEAR(model.Step * model.ClassCount, model.Maximum - model.Minimum,
                  1e-9 * (std::abs(model.Minimum) + std::abs(model.Maximum) + 1));
    }
    Classification before;
    before.ReadFrom(Giving(data));
    data.Log.Calls.clear();
    const bool isWritten = model.SaveTo(Giving(data));
    EXPECT_EQ(isWritten, !data.Writes().empty());
    EXPECT_EQ(data.Minimum, isWritten ? model.Minimum : before.Minimum);
    EXPECT_EQ(data.Classes, isWritten ? model.ClassCount : before.ClassCount);
    // As the host tells it from then on.
    data.Step = (data.Maximum - data.Minimum) / data.Classes;
    Classification again;
    again.ReadFrom(Giving(data));
    again.FitStep();
    EXPECT_FALSE(again.SaveTo(Giving(data)));
  }
}

}  // namespace
}  // namespace orx::test

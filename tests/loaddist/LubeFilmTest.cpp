#include <cmath>

#include <gtest/gtest.h>

#include "loaddist/ContactAtInner.h"
#include "loaddist/LifeFactor.h"
#include "loaddist/LubeFilm.h"
#include "numbers/PiValue.h"
#include "support/FaultOf.h"
#include "support/PlainFilm.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;

ProgramState stateFor(float ball, float pitch, double angle, float load, float speed) {
    ProgramState state;
    state.unitSystem = "US";
    state.bearing.ballDiameter = ball;
    state.bearing.pitchDiameter = pitch;
    state.bearing.contactAngle = angle;
    state.solver.MaxBallLoad = load;
    state.loads.speed = speed;
    return state;
}

ProgramState usualState(float speed = 100.0F) {
    return stateFor(0.25F, 7.992F, ThirtyDegrees, 45.0F, speed);
}

FilmResult filmOf(ProgramState state, double viscosity, ViscosityUnit unit,
                  double gravity = kUsualSpecificGravity) {
    RecordingMessages messages;
    return computeLubeFilm(state, {gravity, viscosity, unit}, messages);
}

TEST(LubeFilm, IsThePlainTranscriptionToTheLastBit) {
    int cases = 0;
    for (const float ball : {0.15625F, 0.25F, 0.375F}) {
        for (const float pitch : {2.5F, 18.0F}) {
            for (const double angle : {0.0, ThirtyDegrees}) {
                for (const float load : {0.75F, 45.03F, 812.5F}) {
                    const bool ssu = ++cases % 2 == 0;
                    const float speed = ssu ? 1.0F : 400.0F;
                    const double viscosity = ssu ? 30.0 + cases : 1.0 + cases;
                    const auto plainFilm =
                        plain::film({ball, pitch, angle, load, speed, 0.92, viscosity, ssu});
                    const FilmResult film =
                        filmOf(stateFor(ball, pitch, angle, load, speed), viscosity,
                               ssu ? ViscosityUnit::Ssu : ViscosityUnit::Centistokes, 0.92);
                    SCOPED_TRACE(cases);
                    EXPECT_EQ(film.stress, plainFilm.stress);
                    EXPECT_EQ(film.ellipticity, plainFilm.ellipticity);
                    EXPECT_EQ(film.film, plainFilm.film);
                    EXPECT_EQ(film.lambda, plainFilm.lambda);
                    EXPECT_EQ(film.lifeFactor, plainFilm.factor);
                    EXPECT_EQ(film.minimumViscosity, plainFilm.viscosity);
                }
            }
        }
    }
}

TEST(ContactAtInner, KeepsTheFirstIntegralGrowingOverItsPasses) {
    plain::Film grown;
    const plain::FilmInput input{0.25, 7.992, ThirtyDegrees, 45.0, 0.0, 0.0, 0.0, true};
    plain::contactAtInner(input, grown);
    EXPECT_GT(grown.passes, 3) << "or the growing sum would have no part in the result";
    // With a fresh sum each pass the ellipse would be the one of the load distribution, about 11 to 1.
    EXPECT_GT(grown.ellipticity, 20.0);
    SolverState solver;
    RecordingMessages messages;
    EXPECT_EQ(
        ContactAtInner(solver, input.pitchDiameter, input.ballDiameter, input.angle, input.load, messages)
            .ellipticity,
        grown.ellipticity);
}

TEST(ContactAtInner, LeavesTheOuterModulusInPsi) {
    SolverState solver;
    solver.OuterModulusMpsi = 29.0;
    solver.InnerModulusMpsi = 29.0;
    RecordingMessages messages;
    ContactAtInner(solver, 7.992, 0.25, ThirtyDegrees, 45.0, messages);
    EXPECT_EQ(solver.OuterModulusMpsi, 29000000.0);
    EXPECT_EQ(solver.InnerModulusMpsi, 29.0);
}

TEST(LifeFactor, FollowsTheTable) {
    EXPECT_EQ(LifeFactor(0.0), 0.16);
    EXPECT_EQ(LifeFactor(0.5878), 0.16) << "below the table, not its first factor";
    EXPECT_EQ(LifeFactor(Single(0.5879)), Single(0.164)) << "the first point itself";
    EXPECT_EQ(LifeFactor(1.0), Single(0.5194));
    EXPECT_EQ(LifeFactor(Single(9.0818)), Single(2.9627));
    EXPECT_EQ(LifeFactor(10.0), 3.0);
    EXPECT_EQ(LifeFactor(250.0), 3.0);
    // Halfway between (1.81, 2.0039) and (1.9847, 2.1279).
    EXPECT_NEAR(LifeFactor(1.89735), 2.0659, 1e-6);
}

TEST(FilmComment, ChangesAtOneOneAndAHalfAndThree) {
    const std::string smearing = filmComment(0.9999);
    EXPECT_EQ(smearing, "Surface smearing or deformation, accompanied by wear on the rolling surfaces");
    const std::string distress = filmComment(1.0);
    EXPECT_EQ(distress, "Surface distress may be accompanied by superficial surface pitting");
    EXPECT_EQ(filmComment(1.4999), distress);
    const std::string glazing = filmComment(1.5);
    EXPECT_EQ(glazing, "Some surface glazing can occur with eventual classical fatique failure");
    EXPECT_EQ(filmComment(2.9999), glazing);
    EXPECT_EQ(std::string(filmComment(3.0)),
              "Minimal wear can be expected, long life, with eventual classical fatigue failure");
}

TEST(LubeFilm, TurnsSsuIntoStokesByTwoFormulasThatMeetAt100) {
    for (const double ssu : {40.0, 99.9, 100.0, 100.1, 400.0}) {
        EXPECT_EQ(
            filmOf(usualState(), ssu, ViscosityUnit::Ssu).film,
            plain::film({0.25, 7.992F, ThirtyDegrees, 45.0, 100.0, kUsualSpecificGravity, ssu, true}).film)
            << ssu;
    }
}

TEST(LubeFilm, LeastViscosityReachesARatioOfThreeAndAStepLessDoesNot) {
    const FilmResult film = filmOf(usualState(), 10.0, ViscosityUnit::Centistokes);
    EXPECT_GE(filmOf(usualState(), film.minimumViscosity, ViscosityUnit::Centistokes).lambda, 3.0 - 1e-9);
    EXPECT_LT(filmOf(usualState(), film.minimumViscosity - 1.0, ViscosityUnit::Centistokes).lambda, 3.0);
}

TEST(LubeFilm, OfASpeedOfZeroIsNoFilmAtAll) {
    const FilmResult film = filmOf(usualState(0.0F), 100.0, ViscosityUnit::Ssu);
    EXPECT_EQ(film.film, 0.0);
    EXPECT_EQ(film.lambda, 0.0);
    EXPECT_EQ(film.lifeFactor, 0.16);
    EXPECT_EQ(film.comment, filmComment(0.0));
    // No viscosity will do: the search ends with its first value beyond 20 stokes.
    EXPECT_GT(film.minimumViscosity, 2000.0);
    EXPECT_LT(film.minimumViscosity, 2001.0 + 1e-6);
}

TEST(LubeFilm, WithNoUnitChosenHasNoViscosity) {
    EXPECT_EQ(filmOf(usualState(), 100.0, ViscosityUnit::None).lambda, 0.0);
    EXPECT_EQ(filmOf(usualState(), 0.0, ViscosityUnit::Centistokes).lambda, 0.0);
}

TEST(LubeFilm, FaultsOnWhatIsNoLubricant) {
    const auto fault = [](double viscosity, ViscosityUnit unit, double gravity) {
        return testing::faultOf([=] { filmOf(usualState(), viscosity, unit, gravity); });
    };
    EXPECT_EQ(fault(0.0, ViscosityUnit::Ssu, 0.9), fault::kDivisionByZero);
    EXPECT_EQ(fault(20.0, ViscosityUnit::Ssu, 0.9), fault::kInvalidCall) << "20 SSU has no stokes";
    EXPECT_EQ(fault(-5.0, ViscosityUnit::Centistokes, 0.9), fault::kInvalidCall);
    EXPECT_EQ(fault(50.0, ViscosityUnit::Centistokes, -0.9), fault::kInvalidCall);
    EXPECT_EQ(testing::faultOf([] {
                  filmOf(stateFor(0.25F, 8.0F, ThirtyDegrees, 0.0F, 10.0F), 50.0, ViscosityUnit::Centistokes);
              }),
              fault::kDivisionByZero)
        << "before any solve there is no ball load";
}

TEST(LubeFilm, ReadsItsFieldsAsNumbersOrZero) {
    const Lubricant typed = lubricantOf(" 0.92", "150 or so", ViscosityUnit::Ssu);
    EXPECT_EQ(typed.specificGravity, 0.92);
    EXPECT_EQ(typed.viscosity, 150.0);
    const Lubricant empty = lubricantOf("", "thick", ViscosityUnit::Centistokes);
    EXPECT_EQ(empty.specificGravity, 0.0);
    EXPECT_EQ(empty.viscosity, 0.0);
}

TEST(LubeFilm, NamesTheBearingInDisplayUnits) {
    ProgramState state = usualState();
    EXPECT_EQ(filmBearingLines(state),
              (std::vector<std::string>{"Ball Diameter = .250 inches", "Pitch Diameter = 7.992 inches",
                                        "Contact Angle = 30 Degrees", "Conformity = 53 %",
                                        "Ball Surface Finish = 2AA", "Path Surface Finish = 16AA"}));
    state.unitSystem = "METRIC";
    ApplyUnitSystem("METRIC", state.units);
    EXPECT_EQ(filmBearingLines(state),
              (std::vector<std::string>{"Ball Diameter = 6.350 mm", "Pitch Diameter = 202.997 mm",
                                        "Contact Angle = 30 Degrees", "Conformity = 53 %",
                                        "Ball Surface Finish = 0.05 um", "Path Surface Finish = 0.41 um"}));
}

TEST(LubeFilm, ShowsItsResultInDisplayUnits) {
    FilmResult result;
    result.maxBallLoad = 10.0;
    result.innerSpeed = Single(0.1);
    result.film = 0.00001704;
    result.lambda = 1.2684;
    result.lifeFactor = 1.2145;
    result.minimumViscosity = 65.0;
    result.comment = "as it is";
    UnitMode units;
    ApplyUnitSystem("METRIC", units);
    const FilmTexts texts = filmTexts(result, units);
    // 10 lb are 10 / 0.2248089 = 44.4822 N; 0.00001704 in are 0.000432816 mm.
    EXPECT_EQ(texts.maxBallLoad, "Maximum Ball Load = 44.482 N");
    EXPECT_EQ(texts.innerSpeed, "Inner Race Rotation Speed = 0.1 RPM");
    EXPECT_EQ(texts.outerSpeed, "Outer Race Rotation Speed = 0 RPM");
    EXPECT_EQ(texts.film, "Min. Iso Lube Film = 4.33E-04 mm");
    EXPECT_EQ(texts.lambda, "Film/Finish Ratio 'Lambda' = 1.268");
    EXPECT_EQ(texts.lifeFactor, "L10 life factor is = 1.21");
    EXPECT_EQ(texts.comment, "as it is");
    EXPECT_EQ(texts.minimumViscosity, "Minimum recommended viscosity is = 65.00 centiStokes");
}

}  // namespace
}  // namespace norlaplan

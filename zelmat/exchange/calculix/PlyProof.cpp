#include <array>

#include "zelmat/exchange/calculix/ProofModel.h"

namespace zelmat {

namespace {

constexpr double kExact = 1e-6;
constexpr double kStrain = 1e-3;
constexpr double kWarmer = 100.0;  // degrees of the deck

constexpr std::array<BarModel::Face, 3> kHigh = {BarModel::X1, BarModel::Y1, BarModel::Z1};

class PlyTests {
public:
    PlyTests(const ProofSubject& subject, const PlyNumbers& ply)
        : subject_(subject), ply_(ply), model_(subject.Model(kPlyConstants)) {}

    ProofModel Model() {
        const double nu21 = ply_.nu12 * ply_.e2 / ply_.e1, nu31 = ply_.nu13 * ply_.e3 / ply_.e1,
                     nu32 = ply_.nu23 * ply_.e3 / ply_.e2;
        Pull(0, ply_.e1, {{{1, ply_.nu12}, {2, ply_.nu13}}});
        Pull(1, ply_.e2, {{{0, nu21}, {2, ply_.nu23}}});
        Pull(2, ply_.e3, {{{0, nu31}, {1, nu32}}});
        Shear(0, 1, ply_.g12);
        Shear(0, 2, ply_.g13);
        Shear(1, 2, ply_.g23);
        if (ply_.alpha1 && !subject_.Find("thermal_expansion")) Warm();
        model_.bars.EndStep("*STEP\n*STATIC\n",
                            "*EL PRINT, ELSET=E%, FREQUENCY=100000\nS\n*NODE PRINT, NSET=N%, "
                            "FREQUENCY=100000\nU\n");
        return std::move(model_);
    }

private:
    struct Ratio {
        std::size_t axis;
        double value;
    };

    static std::string Digit(std::size_t axis) { return std::to_string(axis + 1); }

    void Expect(const std::string& load, const std::string& quantity, const std::string& unit, double ours,
                double scale, const PrintedNumber& printed) {
        model_.expected.push_back({{kPlyConstants, load, quantity, unit, ours, 0.0, scale, kExact}, printed});
    }

    int Bar() { return model_.bars.Add(subject_.Temperature(kRoom)); }

    void Pull(std::size_t axis, double modulus, const std::array<Ratio, 2>& ratios) {
        const int bar = Bar();
        model_.bars.HoldAtOrigin(bar);
        model_.bars.Prescribe(bar, kHigh[axis], static_cast<int>(axis) + 1, kStrain);
        const std::string load = "tension along " + Digit(axis) + ", strain 0.001";
        Expect(load, "stress", Unit(), modulus * kStrain, modulus * kStrain, model_.Stress(bar, axis));
        for (const Ratio& ratio : ratios) {
            Expect(load, "strain along " + Digit(ratio.axis), "-", -ratio.value * kStrain, kStrain,
                   model_.FarDisplacement(bar, ratio.axis));
        }
    }

    void Shear(std::size_t moving, std::size_t height, double modulus) {
        const int bar = Bar();
        model_.bars.Shear(bar, kStrain, static_cast<int>(moving), static_cast<int>(height));
        const std::size_t component = 2 + moving + height;  // xy 3, xz 4, yz 5
        Expect("shear " + Digit(moving) + Digit(height) + ", strain 0.001", "shear stress", Unit(),
               modulus * kStrain, modulus * kStrain, model_.Stress(bar, component));
    }

    void Warm() {
        const int bar = Bar();
        model_.bars.HoldAtOrigin(bar);
        model_.bars.SetTemperature(bar, subject_.Temperature(kRoom) + kWarmer);
        const double along = kWarmer * *ply_.alpha1, across = kWarmer * *ply_.alpha2;
        Expect("free, 100 degrees warmer", "strain along 1", "-", along, across,
               model_.FarDisplacement(bar, 0));
        Expect("free, 100 degrees warmer", "strain along 2", "-", across, across,
               model_.FarDisplacement(bar, 1));
    }

    std::string Unit() const { return subject_.units.For("stress").Spelling(); }

    static constexpr double kRoom = 293.15;

    const ProofSubject& subject_;
    const PlyNumbers& ply_;
    ProofModel model_;
};

}  // namespace

std::optional<ProofModel> PlyProof(const ProofSubject& subject) {
    if (!subject.ply) return std::nullopt;
    return PlyTests(subject, *subject.ply).Model();
}

}  // namespace zelmat

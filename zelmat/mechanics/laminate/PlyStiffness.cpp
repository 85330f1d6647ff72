#include "zelmat/mechanics/laminate/PlyStiffness.h"

#include <cmath>
#include <numbers>

namespace zelmat::mechanics {

Direction DirectionOf(double degrees) {
    const double turn = std::remainder(degrees, 360.0);
    if (turn == 0.0) return {1.0, 0.0};
    if (std::abs(turn) == 180.0) return {-1.0, 0.0};
    if (std::abs(turn) == 90.0) return {0.0, turn > 0.0 ? 1.0 : -1.0};
    const double angle = turn * std::numbers::pi / 180.0;
    return {std::cos(angle), std::sin(angle)};
}

Matrix3 ReducedStiffness(const OrthotropicPly& ply) {
    const double nu21 = ply.nu12 * ply.e2 / ply.e1;
    const double factor = 1.0 / (1.0 - ply.nu12 * nu21);
    const double coupled = ply.nu12 * ply.e2 * factor;
    return {{{ply.e1 * factor, coupled, 0.0}, {coupled, ply.e2 * factor, 0.0}, {0.0, 0.0, ply.g12}}};
}

Matrix3 RotatedStiffness(const OrthotropicPly& ply, double angle) {
    const Matrix3 q = ReducedStiffness(ply);
    const auto [c, s] = DirectionOf(angle);
    const double cc = c * c, ss = s * s, cs = c * s;
    const double shear = q[0][1] + 2.0 * q[2][2];
    const double first = q[0][0] - q[0][1] - 2.0 * q[2][2], second = q[0][1] - q[1][1] + 2.0 * q[2][2];
    const double xx = q[0][0] * cc * cc + 2.0 * shear * cc * ss + q[1][1] * ss * ss;
    const double yy = q[0][0] * ss * ss + 2.0 * shear * cc * ss + q[1][1] * cc * cc;
    const double xy = (q[0][0] + q[1][1] - 4.0 * q[2][2]) * cc * ss + q[0][1] * (cc * cc + ss * ss);
    const double xs = (first * cc + second * ss) * cs;
    const double ys = (first * ss + second * cc) * cs;
    const double sh =
        (q[0][0] + q[1][1] - 2.0 * q[0][1] - 2.0 * q[2][2]) * cc * ss + q[2][2] * (cc * cc + ss * ss);
    return {{{xx, xy, xs}, {xy, yy, ys}, {xs, ys, sh}}};
}

Vector3 RotatedExpansion(const PlyMaterial& material, double angle) {
    const auto [alpha1, alpha2] = material.expansion.value_or(PlyExpansion{.alpha1 = 0.0, .alpha2 = 0.0});
    const auto [c, s] = DirectionOf(angle);
    return {alpha1 * c * c + alpha2 * s * s, alpha1 * s * s + alpha2 * c * c,
            2.0 * (alpha1 - alpha2) * c * s};
}

Vector3 StressInPly(const Vector3& stress, double angle) {
    const auto [c, s] = DirectionOf(angle);
    return {c * c * stress[0] + s * s * stress[1] + 2.0 * c * s * stress[2],
            s * s * stress[0] + c * c * stress[1] - 2.0 * c * s * stress[2],
            c * s * (stress[1] - stress[0]) + (c * c - s * s) * stress[2]};
}

Vector3 StrainInPly(const Vector3& strain, double angle) {
    const auto turned = StressInPly({strain[0], strain[1], 0.5 * strain[2]}, angle);
    return {turned[0], turned[1], 2.0 * turned[2]};
}

Vector3 Times(const Matrix3& matrix, const Vector3& vector) {
    Vector3 product{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) product[i] += matrix[i][k] * vector[k];
    }
    return product;
}

}  // namespace zelmat::mechanics

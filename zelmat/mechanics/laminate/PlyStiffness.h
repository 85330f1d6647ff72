#pragma once

#include "zelmat/mechanics/laminate/Laminate.h"

namespace zelmat::mechanics {

/// Cosine and sine of an angle in degrees, exact at multiples of 90.
struct Direction {
    double cosine, sine;
};
Direction DirectionOf(double degrees);

/// Q: plane stress over strain in the ply's own axes 1, 2.
Matrix3 ReducedStiffness(const OrthotropicPly& ply);

/// Qbar: the same in the laminate's axes, the fibre at an angle in degrees.
Matrix3 RotatedStiffness(const OrthotropicPly& ply, double angle);

/// The thermal expansion in the laminate's axes; the third is the engineering shear strain per kelvin. 0
/// where it is not known.
Vector3 RotatedExpansion(const PlyMaterial& material, double angle);

/// From the laminate's axes into those of a ply at an angle.
Vector3 StressInPly(const Vector3& stress, double angle);
Vector3 StrainInPly(const Vector3& strain, double angle);

Vector3 Times(const Matrix3& matrix, const Vector3& vector);

}  // namespace zelmat::mechanics

#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

/// A fit that the sample card of a rubber gives, OGDEN already as 2 mu/alpha^2.
struct CardFit {
    zelmat::mechanics::HyperelasticModel model;
    int order;
    std::vector<double> coefficients;  ///< Pa
    std::string variant;
    double rmsRelative;  ///< as printed on the card
};

/// The measured curves of a sample card ("natural_rubber_treloar"), in Pa: uniaxial, equibiaxial, planar.
std::vector<zelmat::mechanics::TestCurve> SampleCurves(const std::string& card);

std::vector<CardFit> SampleFits(const std::string& card);

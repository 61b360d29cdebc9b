// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/lens_solver.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <optional>
#include <random>

#include "remap/analysis/straighten/angle_scale.h"
#include "remap/analysis/straighten/model_fit.h"
#include "remap/analysis/straighten/view_bend.h"

namespace varnel {

namespace {

constexpr int mostTerms = 3;
// What a further term has to take from the held-out loss, in deviations squared.
constexpr double leastGain = 1.0;
// The scale of angles counts as known when it is so within this.
constexpr double fixedScale = 0.025;
constexpr double degree = std::numbers::pi / 180.0;

// What is stated holds in about as many cases of a hundred.
constexpr std::size_t statedPercent = 90;
constexpr double halvesFactor = 0.85;  // half of their difference, made as sure

double Stated(Numbers values) {
    std::ranges::sort(values);
    return values[values.size() * statedPercent / 100];
}

struct Candidate {
    LensModel model;
    LeastSquaresFit fit;
    double heldOut = 0.0;
};

// First by the residuals as they are, then by what remains of them.
Candidate Fitted(LensModel model, const std::vector<EdgePoints>& edges, const LensView& guess) {
    LeastSquaresFit fit;
    fit.parameters.resize(model.Parameters(), 0.0);
    double noise = std::max(NoiseOf(edges, guess), 0.5);
    for (int round = 0; round < 3; ++round) {
        fit = FitModel(model, edges, EdgeLoss(noise), fit.parameters);
        noise = NoiseOf(edges, model.At(fit.parameters));
    }
    return {model, std::move(fit), noise};
}

class Solving {
  public:
    Solving(const std::vector<EdgeTrace>& edges, const LensView& guess, LensConstraints known,
            const SolveOptions& options)
        : edges_(edges),
          all_(Condensed(edges)),
          guess_(guess),
          present_(options.present != nullptr ? *options.present : guess),
          stop_(options.stop),
          known_(known),
          loss_(1.0) {
        for (const EdgePoints& edge : all_) {
            for (const EdgePoint& point : edge) {
                known_.reach = std::max(known_.reach, Distance(point, guess.centre));
            }
        }
    }

    SolvedLens Run() {
        SolvedLens solved{present_, false, 0, {}, 0.0, 0.0, 0.0, 0.0, false};
        Sort(present_, solved, false);
        if (used_.size() < leastEdges) {
            return solved;
        }
        std::optional<Candidate> best = Best();
        Sort(best->model.At(best->fit.parameters), solved, true);
        if (used_.size() >= leastEdges) {
            best = Best();
        }
        const double before = MeanLoss(present_, used_, loss_);
        solved.improved = best->heldOut < before;
        solved.terms = solved.improved ? best->model.Terms() : 0;
        solved.heldOutBefore = loss_.Noise() * std::sqrt(before);
        solved.heldOutAfter = loss_.Noise() * std::sqrt(std::min(best->heldOut, before));
        solved.lens = solved.improved ? best->model.At(best->fit.parameters) : present_;
        Judge(*best, solved);
        Sort(solved.lens, solved, true);
        return solved;
    }

  private:
    // Which edges are used: those that say something and, if wanted, are straight enough.
    void Sort(const LensView& lens, SolvedLens& solved, bool onlyStraight) {
        Numbers sizes;
        solved.edges.clear();
        for (const EdgePoints& edge : all_) {
            solved.edges.push_back({FitGreatCircle(lens, edge).rms, edge.size() > 3});
            sizes.push_back(solved.edges.back().rms);
        }
        std::ranges::sort(sizes);
        const double limit = sizes.empty() || !onlyStraight
                                 ? std::numeric_limits<double>::infinity()
                                 : 4.0 * sizes[sizes.size() / 2] + 0.3;
        used_.clear();
        for (std::size_t n = 0; n < all_.size(); ++n) {
            solved.edges[n].used = solved.edges[n].used && solved.edges[n].rms <= limit;
            if (solved.edges[n].used) {
                used_.push_back(all_[n]);
            }
        }
    }

    // Of the forms the one with least noise; of its further terms those that held-out edges
    // support.
    Candidate Best() {
        std::optional<Candidate> form;
        CurveForm best = CurveForm::Guess;
        for (const CurveForm one : {CurveForm::Guess, CurveForm::Sin, CurveForm::Tan}) {
            stop_();
            Candidate fitted = Fitted(LensModel(one, 0, guess_, known_), used_, guess_);
            if (!form || fitted.heldOut < form->heldOut) {
                form = std::move(fitted);
                best = one;
            }
        }
        const Candidate rich = Fitted(LensModel(best, mostTerms, guess_, known_), used_, guess_);
        loss_ = EdgeLoss(rich.heldOut, WeightOf(used_, rich.model.At(rich.fit.parameters)));
        std::optional<Candidate> chosen;
        for (int terms = 0; terms <= mostTerms; ++terms) {
            stop_();
            LensModel model(best, terms, guess_, known_);
            LeastSquaresFit fit = FitModel(model, used_, loss_,
                                           chosen ? chosen->fit.parameters : form->fit.parameters);
            const double heldOut = HeldOutLoss(model, used_, loss_, fit.parameters);
            if (!chosen || heldOut < chosen->heldOut - leastGain / static_cast<double>(Points())) {
                chosen = Candidate{model, std::move(fit), heldOut};
            }
        }
        return *chosen;
    }

    // Parameters as far from the fit as the edges allow, by chance but always the same. Either the
    // points' errors are their own, or those of an edge are bent together.
    std::vector<Numbers> Draws(const Candidate& best, bool bentTogether) const {
        const std::size_t count = best.model.Parameters();
        const SquareMatrix root = Information(best.fit.derivatives).Root();
        const std::size_t priors = best.fit.residuals.size() - Points();
        const double few = static_cast<double>(used_.size());
        const double inflation = std::sqrt(few / std::max(few - static_cast<double>(count), 1.0));
        std::mt19937 random(1);
        std::normal_distribution<double> normal;
        std::vector<Numbers> draws;
        for (int draw = 0; draw < 40; ++draw) {
            Numbers errors;
            while (errors.size() < priors) {
                errors.push_back(normal(random));
            }
            for (const EdgePoints& edge : used_) {
                const double together = inflation * normal(random);
                for (std::size_t n = 0; n < edge.size(); ++n) {
                    errors.push_back(bentTogether ? together * best.fit.residuals[errors.size()]
                                                  : normal(random));
                }
            }
            Numbers pull;
            for (const Numbers& column : best.fit.derivatives) {
                pull.push_back(
                    std::inner_product(column.begin(), column.end(), errors.begin(), 0.0));
            }
            Numbers moved = SolveByRoot(root, pull);
            std::ranges::transform(moved, best.fit.parameters, moved.begin(), std::plus());
            draws.push_back(std::move(moved));
        }
        return draws;
    }

    std::size_t Points() const {
        std::size_t points = 0;
        for (const EdgePoints& edge : used_) {
            points += edge.size();
        }
        return points;
    }

    // The fit with all terms.
    LensView Richest(const Candidate& best) const {
        const LensModel model(best.model.Form(), mostTerms, guess_, known_);
        return model.At(FitModel(model, used_, loss_, best.fit.parameters).parameters);
    }

    // The bend between fits to halves of the edges, root mean square over some ways to halve them;
    // what is wrong with edges in ways that no model knows shows there.
    double BetweenHalves(const Candidate& best) const {
        double squares = 0.0;
        constexpr std::array<std::size_t, 4> turns{1, 2, 3, 5};
        for (const std::size_t turn : turns) {
            const double bend = BetweenHalves(best, turn);
            squares += bend * bend / turns.size();
        }
        return std::sqrt(squares);
    }

    // Every so many of them in turn.
    double BetweenHalves(const Candidate& best, std::size_t turn) const {
        std::array<std::vector<EdgePoints>, 2> halves;
        for (std::size_t n = 0; n < used_.size(); ++n) {
            halves[n / turn % 2].push_back(used_[n]);
        }
        const auto fitted = [&](const std::vector<EdgePoints>& half) {
            stop_();
            return best.model.At(FitModel(best.model, half, loss_, best.fit.parameters).parameters);
        };
        return ViewBend(fitted(halves[0]), fitted(halves[1]));
    }

    // How sure the result is, and the scale of angles.
    void Judge(const Candidate& best, SolvedLens& solved) const {
        const LensView fitted = best.model.At(best.fit.parameters);
        double angle = 0.0;
        for (const bool bentTogether : {false, true}) {
            Numbers bends, angles;
            for (const Numbers& draw : Draws(best, bentTogether)) {
                const LensView moved = best.model.At(draw);
                bends.push_back(ViewBend(moved, fitted));
                angles.push_back(AngleDifference(moved, fitted));
            }
            solved.expectedBend = std::max(solved.expectedBend, Stated(bends));
            angle = std::max(angle, Stated(angles));
        }
        // Another number of terms would fit about as well: so the curve is no surer than this.
        solved.expectedBend = std::max({solved.expectedBend, ViewBend(Richest(best), fitted),
                                        halvesFactor * BetweenHalves(best)});
        const AngleScale scale =
            FindAngleScale(solved.lens, edges_, loss_.Noise(), known_.focalPixels);
        solved.anglesFixed = scale.deviation < fixedScale;
        if (solved.anglesFixed) {
            solved.lens = WithAngleScale(solved.lens, scale.scale);
        }
        solved.angleErrorDegrees = std::hypot(angle, 0.5 * scale.deviation / degree);
    }

    // The largest up to 55 degrees, but for the scale of angles; degrees.
    static double AngleDifference(const LensView& a, const LensView& b) {
        Numbers differences;
        double product = 0.0, square = 0.0;
        for (int n = 1; n <= 11; ++n) {
            const double angle = 5.0 * n * degree;
            const double difference = a.curve.At(b.curve.Radius(angle)).angle - angle;
            product += difference * std::sin(2.0 * angle);
            square += std::sin(2.0 * angle) * std::sin(2.0 * angle);
            differences.push_back(difference);
        }
        double most = 0.0;
        for (std::size_t n = 0; n < differences.size(); ++n) {
            const double angle = 5.0 * degree * static_cast<double>(n + 1);
            most = std::max(most,
                            std::fabs(differences[n] - std::sin(2.0 * angle) * product / square));
        }
        return most / degree;
    }

    const std::vector<EdgeTrace>& edges_;
    std::vector<EdgePoints> all_;
    std::vector<EdgePoints> used_;
    const LensView& guess_;
    const LensView& present_;
    const StopCheck& stop_;
    LensConstraints known_;
    EdgeLoss loss_;
};

}  // namespace

SolvedLens SolveLens(const std::vector<EdgeTrace>& edges, const LensView& guess,
                     const LensConstraints& known, const SolveOptions& options) {
    return Solving(edges, guess, known, options).Run();
}

}  // namespace varnel

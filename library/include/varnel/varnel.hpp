// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// varnel.h for C++17 and later: handles that free themselves, errors as exceptions. Everything else
// is as varnel.h says. Header only, so that nothing of C++ crosses the library's border.
#ifndef VARNEL_VARNEL_HPP
#define VARNEL_VARNEL_HPP

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "varnel/varnel.h"

namespace varnel {

class Error : public std::runtime_error {
  public:
    Error(varnel_status status, const std::string& text)
        : std::runtime_error(text), status_(status) {}
    varnel_status Status() const noexcept { return status_; }

  private:
    varnel_status status_;
};

namespace detail {

// Calls a function of varnel.h with a place for its error, and throws what comes back.
template <class Function, class... Arguments>
void Call(Function function, Arguments... arguments) {
    varnel_error* error = nullptr;
    const varnel_status status = function(arguments..., &error);
    if (status != VARNEL_OK) {
        const std::unique_ptr<varnel_error, void (*)(varnel_error*)> owned(error,
                                                                           &varnel_error_free);
        throw Error(status, varnel_error_text(error));
    }
}

inline const char* OrNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

template <class Function, class... Arguments>
std::vector<std::string> Names(Function function, Arguments... arguments) {
    varnel_names* names = nullptr;
    Call(function, arguments..., &names);
    const std::unique_ptr<varnel_names, void (*)(varnel_names*)> owned(names, &varnel_names_free);
    std::vector<std::string> all;
    for (std::size_t n = 0; n < varnel_names_count(names); ++n) {
        all.emplace_back(varnel_names_at(names, n));
    }
    return all;
}

}  // namespace detail

inline std::vector<std::string> Cameras() { return detail::Names(&varnel_list_cameras); }
inline std::vector<std::string> Lenses() { return detail::Names(&varnel_list_lenses); }
inline std::vector<std::string> Projections() { return detail::Names(&varnel_list_projections); }
inline std::vector<std::string> Settings() { return detail::Names(&varnel_list_settings); }
inline std::vector<std::string> LensesOfFile(const std::string& path) {
    return detail::Names(&varnel_list_lenses_of_file, path.c_str());
}

// Pixels from the left and from the top.
struct Point {
    double x = 0.0;
    double y = 0.0;
};
// x to the right, y up, z along the axis.
struct Direction {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
};
static_assert(sizeof(Point) == 2 * sizeof(double) && sizeof(Direction) == 3 * sizeof(double));

class Pool {
  public:
    explicit Pool(int threads = 0) { detail::Call(&varnel_pool_new, threads, &pool_); }
    ~Pool() { varnel_pool_free(pool_); }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    varnel_pool* Handle() const noexcept { return pool_; }

  private:
    varnel_pool* pool_ = nullptr;
};

// Without a camera: a sensor whose longer side is 36 mm.
class Lens {
  public:
    static Lens FromCatalogue(const std::string& lens, const std::string& camera = {}) {
        return Made(&varnel_lens_from_catalogue, lens.c_str(), detail::OrNull(camera));
    }
    static Lens FromFile(const std::string& path, std::size_t number = 0,
                         const std::string& camera = {}) {
        return Made(&varnel_lens_from_file, path.c_str(), number, detail::OrNull(camera));
    }
    static Lens FromCurve(const std::vector<double>& degrees, const std::vector<double>& radii) {
        if (degrees.size() != radii.size()) {
            throw Error(VARNEL_BAD_ARGUMENT, "as many angles as radii are needed");
        }
        return Made(&varnel_lens_from_curve, degrees.data(), radii.data(), degrees.size());
    }
    static Lens OfPhoto(const std::string& path) {
        return Made(&varnel_lens_of_photo, path.c_str());
    }
    static Lens Measure(const std::vector<varnel_image>& photos, const Lens* known = nullptr,
                        varnel_measurement* measurement = nullptr) {
        Lens lens;
        detail::Call(&varnel_lens_measure, photos.data(), photos.size(),
                     known == nullptr ? nullptr : known->lens_, &lens.lens_, measurement);
        return lens;
    }

    Lens(const Lens& other) {
        if (other.lens_ != nullptr) {
            detail::Call(&varnel_lens_copy, other.lens_, &lens_);
        }
    }
    Lens(Lens&& other) noexcept : lens_(std::exchange(other.lens_, nullptr)) {}
    Lens& operator=(Lens other) noexcept {
        std::swap(lens_, other.lens_);
        return *this;
    }
    ~Lens() { varnel_lens_free(lens_); }

    void SetCircle(const Point& centre, double radius, const Size& pictures) {
        detail::Call(&varnel_lens_set_circle, lens_, centre.x, centre.y, radius, pictures.width,
                     pictures.height);
    }
    void FindCircle(const varnel_image& photo) {
        detail::Call(&varnel_lens_find_circle, lens_, &photo);
    }
    std::string Name() const { return varnel_lens_name(lens_); }
    double FieldDegrees() const {
        double degrees = 0.0;
        detail::Call(&varnel_lens_field, lens_, &degrees);
        return degrees;
    }
    void Write(const std::string& path) const {
        detail::Call(&varnel_lens_write, lens_, path.c_str());
    }
    std::vector<Direction> Directions(const Size& photo, const std::vector<Point>& points) const {
        std::vector<Direction> directions(points.size());
        detail::Call(&varnel_source_to_direction, lens_, photo.width, photo.height,
                     reinterpret_cast<const double*>(points.data()), points.size(),
                     reinterpret_cast<double*>(directions.data()));
        return directions;
    }
    std::vector<Point> Points(const Size& photo, const std::vector<Direction>& directions) const {
        std::vector<Point> points(directions.size());
        detail::Call(&varnel_direction_to_source, lens_, photo.width, photo.height,
                     reinterpret_cast<const double*>(directions.data()), directions.size(),
                     reinterpret_cast<double*>(points.data()));
        return points;
    }
    const varnel_lens* Handle() const noexcept { return lens_; }

  private:
    Lens() = default;
    template <class Function, class... Arguments>
    static Lens Made(Function function, Arguments... arguments) {
        Lens lens;
        detail::Call(function, arguments..., &lens.lens_);
        return lens;
    }

    varnel_lens* lens_ = nullptr;
};

class View {
  public:
    View() { detail::Call(&varnel_view_new, &view_); }
    View(const View& other) { detail::Call(&varnel_view_copy, other.view_, &view_); }
    View& operator=(const View& other) {
        View copy(other);
        std::swap(view_, copy.view_);
        return *this;
    }
    ~View() { varnel_view_free(view_); }

    View& Set(const std::string& name, const std::string& value) {
        detail::Call(&varnel_view_set, view_, name.c_str(), value.c_str());
        return *this;
    }
    Size SizeFor(const Size& photo) const {
        Size size;
        detail::Call(&varnel_view_size, view_, photo.width, photo.height, &size.width,
                     &size.height);
        return size;
    }
    const varnel_view* Handle() const noexcept { return view_; }

  private:
    varnel_view* view_ = nullptr;
};

inline void Remap(const Lens& lens, const View& view, const varnel_image& source,
                  const varnel_image& result, const Pool* pool = nullptr) {
    detail::Call(&varnel_remap, lens.Handle(), view.Handle(), &source, &result,
                 pool == nullptr ? nullptr : pool->Handle());
}

inline std::vector<Point> ResultToSource(const Lens& lens, const View& view, const Size& photo,
                                         const std::vector<Point>& points) {
    std::vector<Point> places(points.size());
    detail::Call(&varnel_result_to_source, lens.Handle(), view.Handle(), photo.width, photo.height,
                 reinterpret_cast<const double*>(points.data()), points.size(),
                 reinterpret_cast<double*>(places.data()));
    return places;
}

inline std::vector<Point> SourceToResult(const Lens& lens, const View& view, const Size& photo,
                                         const std::vector<Point>& points) {
    std::vector<Point> places(points.size());
    detail::Call(&varnel_source_to_result, lens.Handle(), view.Handle(), photo.width, photo.height,
                 reinterpret_cast<const double*>(points.data()), points.size(),
                 reinterpret_cast<double*>(places.data()));
    return places;
}

// False from the report stops the run; what it throws does so, too, and is thrown on.
inline void Convert(const std::vector<std::string>& words,
                    const std::function<bool(const char* json)>& report = {},
                    bool userSettings = false) {
    std::vector<const char*> plain;
    for (const std::string& word : words) {
        plain.push_back(word.c_str());
    }
    struct Teller {
        const std::function<bool(const char*)>& report;
        std::exception_ptr failure;
    } teller{report, nullptr};
    const varnel_report tell = [](void* user, const char* json) {
        auto& told = *static_cast<Teller*>(user);
        try {
            return told.report(json) ? 0 : 1;
        } catch (...) {
            told.failure = std::current_exception();
            return 1;
        }
    };
    try {
        detail::Call(&varnel_convert, plain.data(), plain.size(), userSettings ? 1 : 0,
                     report ? tell : nullptr, static_cast<void*>(&teller));
    } catch (const Error&) {
        if (!teller.failure) {
            throw;
        }
    }
    if (teller.failure) {
        std::rethrow_exception(teller.failure);
    }
}

}  // namespace varnel

#endif

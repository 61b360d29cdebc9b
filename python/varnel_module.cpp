// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the Python package varnel calls: the C++ interface of libvarnel with NumPy's arrays for
// pictures and points. Sizes are (width, height) in pixels, rows count from the top.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <unistd.h>

#include <map>
#include <optional>
#include <varnel/varnel.hpp>

namespace py = pybind11;

namespace {

using varnel::Lens;
using varnel::View;
using Points = py::array_t<double, py::array::c_style | py::array::forcecast>;
using SizePair = std::pair<std::int32_t, std::int32_t>;

[[noreturn]] void Refuse(const std::string& name, const std::string& why) {
    throw varnel::Error(VARNEL_BAD_ARGUMENT, name + ": " + why);
}

// Exceptions of varnel/_errors.py, so that they have plain classes of Python's.
void Raise(const varnel::Error& error) {
    const py::object made = py::module_::import("varnel._errors")
                                .attr("error_for")(static_cast<int>(error.Status()), error.what());
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(made.ptr())), made.ptr());
}

// The kind of an array's samples, which have the machine's byte order.
std::optional<varnel_sample> SampleOf(const py::array& array) {
    if (py::isinstance<py::array_t<std::uint8_t>>(array)) {
        return VARNEL_UINT8;
    }
    if (py::isinstance<py::array_t<std::uint16_t>>(array)) {
        return VARNEL_UINT16;
    }
    if (py::isinstance<py::array_t<float>>(array)) {
        return VARNEL_FLOAT;
    }
    return std::nullopt;
}

// Whether the samples of a pixel and the pixels of a row lie side by side: rows may lie anyhow, but
// not within each other. Steps along sides of 1 count for nothing.
bool LiesInPlace(const py::array& array) {
    const py::ssize_t sample = array.itemsize();
    const py::ssize_t channels = array.ndim() == 3 ? array.shape(2) : 1;
    const py::ssize_t row = array.strides(0);
    const auto fits = [](py::ssize_t side, py::ssize_t step, py::ssize_t wanted) {
        return side == 1 || step == wanted;
    };
    return (array.ndim() == 2 || fits(channels, array.strides(2), sample)) &&
           fits(array.shape(1), array.strides(1), channels * sample) &&
           (array.shape(0) == 1 ||
            (row % sample == 0 && std::abs(row) >= array.shape(1) * channels * sample)) &&
           reinterpret_cast<std::uintptr_t>(array.data()) % static_cast<std::size_t>(sample) == 0;
}

// An array as the library sees it. Keeps the array.
class Image {
  public:
    // name is for errors. Throws varnel::Error where the array is no picture that can be used as it
    // lies.
    Image(py::array array, const std::string& order, const std::string& name)
        : array_(std::move(array)) {
        const auto sample = SampleOf(array_);
        if (!sample || (array_.ndim() != 2 && array_.ndim() != 3)) {
            Refuse(name, "it is no array of uint8, uint16 or float32 with two or three dimensions");
        }
        const auto side = [](py::ssize_t pixels) {
            return static_cast<std::int32_t>(std::min<py::ssize_t>(pixels, 1 << 30));
        };
        if (order != "RGB" && order != "BGR") {
            Refuse("order", "there are RGB and BGR, not \"" + order + "\"");
        }
        // No sample is written through a picture that is read from.
        image_ = {.pixels = const_cast<void*>(array_.data()),
                  .width = side(array_.shape(1)),
                  .height = side(array_.shape(0)),
                  .row_bytes = array_.shape(0) == 1 ? array_.nbytes() : array_.strides(0),
                  .channels = array_.ndim() == 3 ? side(array_.shape(2)) : 1,
                  .sample = *sample,
                  .order = order == "RGB" ? VARNEL_RGB : VARNEL_BGR};
        if (array_.size() > 0 && !LiesInPlace(array_)) {
            Refuse(name, "the samples of its rows do not lie side by side");
        }
    }
    const varnel_image& Get() const { return image_; }
    bool IsWriteable() const { return array_.writeable(); }

  private:
    py::array array_;
    varnel_image image_{};
};

// Pools by their number of threads. One that this process inherited by a fork has no threads here:
// it is forgotten, not freed. They last as long as the process.
class Pools {
  public:
    const varnel::Pool* For(int threads) {
        if (threads == 1) {
            return nullptr;
        }
        if (owner_ != getpid()) {
            owner_ = getpid();
            new std::map(std::move(pools_));
            pools_.clear();
        }
        auto& pool = pools_[threads];
        if (!pool) {
            pool = std::make_unique<varnel::Pool>(threads);
        }
        return pool.get();
    }

  private:
    pid_t owner_ = getpid();
    std::map<int, std::unique_ptr<varnel::Pool>> pools_;
};

// With the interpreter's lock held only.
const varnel::Pool* PoolOf(int threads) {
    static auto* const pools = new Pools;
    return pools->For(threads);
}

varnel::Size ToSize(const SizePair& size) {
    return {size.first, size.second};
}

// Lenses and views are copied (cheaply) before the lock goes: other threads may change theirs.
template <class Handle>
Handle CopyOf(const Handle& handle) {
    return handle;
}

void Remap(const Lens& lens, const View& view, const Image& source, const Image& result,
           int threads) {
    if (!result.IsWriteable()) {
        Refuse("out", "it cannot be written to");
    }
    const varnel::Pool* const pool = PoolOf(threads);
    const Lens ownLens = CopyOf(lens);
    const View ownView = CopyOf(view);
    const py::gil_scoped_release released;
    varnel::Remap(ownLens, ownView, source.Get(), result.Get(), pool);
}

// `in` of rows of inWidth numbers to as many rows of outWidth, by function(in, count, out).
template <class Function>
py::array_t<double> Mapped(const Points& in, int inWidth, int outWidth, const Function& function) {
    if (in.ndim() != 2 || in.shape(1) != inWidth) {
        Refuse("points", "they have not the shape (n, " + std::to_string(inWidth) + ")");
    }
    py::array_t<double> out({in.shape(0), py::ssize_t{outWidth}});
    const double* const from = in.data();
    double* const to = out.mutable_data();
    const auto count = static_cast<std::size_t>(in.shape(0));
    const py::gil_scoped_release released;
    function(from, count, to);
    return out;
}

using LensPoints = varnel_status (*)(const varnel_lens*, std::int32_t, std::int32_t, const double*,
                                     std::size_t, double*, varnel_error**);
using ViewPoints = varnel_status (*)(const varnel_lens*, const varnel_view*, std::int32_t,
                                     std::int32_t, const double*, std::size_t, double*,
                                     varnel_error**);

template <LensPoints function, int inWidth, int outWidth>
py::array_t<double> OfLens(const Lens& lens, const Points& in, const SizePair& size) {
    const Lens own = CopyOf(lens);
    return Mapped(in, inWidth, outWidth, [&](const double* from, std::size_t count, double* to) {
        varnel::detail::Call(function, own.Handle(), size.first, size.second, from, count, to);
    });
}

template <ViewPoints function>
py::array_t<double> OfView(const Lens& lens, const View& view, const Points& in,
                           const SizePair& size) {
    const Lens own = CopyOf(lens);
    const View ownView = CopyOf(view);
    return Mapped(in, 2, 2, [&](const double* from, std::size_t count, double* to) {
        varnel::detail::Call(function, own.Handle(), ownView.Handle(), size.first, size.second,
                             from, count, to);
    });
}

// The lens, and how many edges were found and used, the bend before and after, the angles' error.
py::tuple Measure(const std::vector<const Image*>& photos, const Lens* known) {
    std::vector<varnel_image> images;
    for (const Image* const photo : photos) {
        images.push_back(photo->Get());
    }
    const std::optional<Lens> own = known != nullptr ? std::optional(*known) : std::nullopt;
    varnel_measurement measured{};
    std::optional<Lens> lens;
    {
        const py::gil_scoped_release released;
        lens = Lens::Measure(images, own ? &*own : nullptr, &measured);
    }
    return py::make_tuple(std::move(*lens), measured.edges_found, measured.edges_used,
                          measured.before, measured.after, measured.angle_error);
}

void FindCircle(Lens& lens, const Image& photo) {
    Lens own(lens);
    {
        const py::gil_scoped_release released;
        own.FindCircle(photo.Get());
    }
    lens = std::move(own);
}

// A signal that waits for the interpreter (Ctrl-C) ends the run, as does what the report raises.
void Convert(const std::vector<std::string>& words, const py::function& report, bool userSettings) {
    const py::gil_scoped_release released;
    varnel::Convert(
        words,
        [&](const char* json) {
            const py::gil_scoped_acquire acquired;
            if (PyErr_CheckSignals() != 0) {
                throw py::error_already_set();
            }
            return report(py::str(json)).cast<bool>();
        },
        userSettings);
}

template <class Function, class... Arguments>
auto Unlocked(Function function, const Arguments&... arguments) {
    const py::gil_scoped_release released;
    return function(arguments...);
}

void AddLens(py::module_& module) {
    py::class_<Lens>(module, "Lens")
        .def(py::init<const Lens&>())
        .def_static("from_catalogue", &Lens::FromCatalogue)
        .def_static("from_file",
                    [](const std::string& path, std::size_t number, const std::string& camera) {
                        return Unlocked(&Lens::FromFile, path, number, camera);
                    })
        .def_static("from_curve", &Lens::FromCurve)
        .def_static("of_photo",
                    [](const std::string& path) { return Unlocked(&Lens::OfPhoto, path); })
        .def("set_circle",
             [](Lens& lens, const std::pair<double, double>& centre, double radius,
                const SizePair& size) {
                 lens.SetCircle({centre.first, centre.second}, radius, ToSize(size));
             })
        .def("find_circle", &FindCircle)
        .def("write", &Lens::Write)
        .def("name", &Lens::Name)
        .def("field", &Lens::FieldDegrees);
}

}  // namespace

PYBIND11_MODULE(_varnel, module) {
    py::register_exception_translator([](std::exception_ptr thrown) {
        try {
            std::rethrow_exception(std::move(thrown));
        } catch (const varnel::Error& error) {
            Raise(error);
        }
    });
    AddLens(module);
    py::class_<View>(module, "View")
        .def(py::init<>())
        .def("set", [](View& view, const std::string& name,
                       const std::string& value) { view.Set(name, value); })
        .def("size_for", [](const View& view, const SizePair& photo) {
            const varnel::Size size = view.SizeFor(ToSize(photo));
            return SizePair(size.width, size.height);
        });
    py::class_<Image>(module, "Image")
        .def(py::init<py::array, const std::string&, const std::string&>());
    module.def("lies_in_place", &LiesInPlace);
    module.def("remap", &Remap);
    module.def("directions", &OfLens<&varnel_source_to_direction, 2, 3>);
    module.def("points", &OfLens<&varnel_direction_to_source, 3, 2>);
    module.def("result_to_source", &OfView<&varnel_result_to_source>);
    module.def("source_to_result", &OfView<&varnel_source_to_result>);
    module.def("measure", &Measure);
    module.def("convert", &Convert);
    module.def("cameras", &varnel::Cameras);
    module.def("lenses", &varnel::Lenses);
    module.def("lenses_of_file", &varnel::LensesOfFile);
    module.def("projections", &varnel::Projections);
    module.def("settings", &varnel::Settings);
    module.def("version", &varnel_version);
}

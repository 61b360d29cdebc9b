/* SPDX-FileCopyrightText: Varnel developers
 * SPDX-License-Identifier: GPL-3.0-or-later
 *
 * libvarnel: fisheye pictures into other projections.
 *
 * Pixels: row 0 of a picture is its top row, x counts to the right and y down, and whole numbers
 * are the middles of pixels: (0, 0) is the middle of the top left one. (The files of the program
 * itself count rows from the bottom; this interface does not.) The projections set the axis of a
 * lens of the catalogue on a whole pixel, up to half a pixel beside where its directions have it.
 * Directions: x to the right, y up and z along the optical axis, of the camera that took the photo;
 * of length 1.
 * Texts are UTF-8 and end with a zero byte. Numbers in texts have a decimal point.
 *
 * Threads: there is no global state. A handle that is not changed may be used by several threads at
 * once, one that is changed (varnel_lens_set_..., varnel_view_set) by one at a time. Work is done
 * on the caller's thread, and on those of a pool where one is given.
 *
 * Errors: functions that can fail return a status, VARNEL_OK if all is well. With an `error` that
 * is not null they set *error to null or to an error with a text for people, to be freed with
 * varnel_error_free(). Handles that a function makes are set to null when it fails. Nothing is
 * thrown across. Null handles are an error of status VARNEL_BAD_ARGUMENT; all the ..._free
 * functions take null.
 */
#ifndef VARNEL_VARNEL_H
#define VARNEL_VARNEL_H

#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define VARNEL_API __attribute__((visibility("default")))
#else
#define VARNEL_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef enum varnel_status {
    VARNEL_OK = 0,
    VARNEL_BAD_ARGUMENT = 1, /* a null handle, a size, a text that means nothing */
    VARNEL_NOT_FOUND = 2,    /* no such lens or camera */
    VARNEL_NOT_READ = 3,     /* a file that cannot be read, or is no lens or photo */
    VARNEL_NOT_WRITTEN = 4,
    VARNEL_IMPOSSIBLE = 5,   /* the numbers of lens and view make no picture */
    VARNEL_NOT_MEASURED = 6, /* too few edges, or no better lens than the one known */
    VARNEL_STOPPED = 7,      /* a report asked for it */
    VARNEL_NO_MEMORY = 8,
    VARNEL_INTERNAL = 9
} varnel_status;

typedef struct varnel_error varnel_error;
typedef struct varnel_names varnel_names;
typedef struct varnel_lens varnel_lens;
typedef struct varnel_view varnel_view;
typedef struct varnel_pool varnel_pool;

/* "1.1.0", of the library that runs. Lasts for ever. */
VARNEL_API const char* varnel_version(void);

/* Lasts as long as the error; "" for null. */
VARNEL_API const char* varnel_error_text(const varnel_error* error);
VARNEL_API void varnel_error_free(varnel_error* error);

/* ---- Lists of names ------------------------------------------------------------------------- */

VARNEL_API size_t varnel_names_count(const varnel_names* names);
/* Null from varnel_names_count() on. Lasts as long as the list. */
VARNEL_API const char* varnel_names_at(const varnel_names* names, size_t index);
VARNEL_API void varnel_names_free(varnel_names* names);

/* "BRAND/MODEL" for each of the catalogue. */
VARNEL_API varnel_status varnel_list_cameras(varnel_names** names, varnel_error** error);
VARNEL_API varnel_status varnel_list_lenses(varnel_names** names, varnel_error** error);
/* As varnel_view_set() takes them for "Projection": "varnel", "rectilinear", "equidistance" ... */
VARNEL_API varnel_status varnel_list_projections(varnel_names** names, varnel_error** error);
/* The names that varnel_view_set() takes. */
VARNEL_API varnel_status varnel_list_settings(varnel_names** names, varnel_error** error);

/* ---- Pools of threads ----------------------------------------------------------------------- */

/* So many threads at work, the caller's included; 0: one for each core. Threads start with the
 * first work and wait between calls. Several threads may use one pool. */
VARNEL_API varnel_status varnel_pool_new(int threads, varnel_pool** pool, varnel_error** error);
/* None of its work may be under way. */
VARNEL_API void varnel_pool_free(varnel_pool* pool);

/* ---- Pictures ------------------------------------------------------------------------------- */

typedef enum varnel_sample {
    VARNEL_UINT8 = 0,
    VARNEL_UINT16 = 1, /* in the machine's byte order */
    VARNEL_FLOAT = 2   /* single precision: black is 0, white 1, brighter than white is kept */
} varnel_sample;

typedef enum varnel_order {
    VARNEL_RGB = 0, /* red first */
    VARNEL_BGR = 1
} varnel_order;

/* The caller's pixels; the samples of a pixel lie side by side. */
typedef struct varnel_image {
    void* pixels;        /* of the top row, aligned for its samples */
    int32_t width;       /* pixels, 1 to 32767 */
    int32_t height;      /* likewise */
    ptrdiff_t row_bytes; /* from a row to the next one below; a multiple of a sample's size,
                            negative where the rows lie the other way; at least a row of pixels */
    int32_t channels;    /* 1 grey, 2 grey and alpha, 3 colours, 4 colours and alpha; alpha is a
                            share of white, the colours are not multiplied by it */
    varnel_sample sample;
    varnel_order
        order; /* of the colours: counts for lenses whose colours part, and colours outside */
} varnel_image;

/* ---- Lenses --------------------------------------------------------------------------------- */

/* A lens with the camera that it is on: which direction lands where on a picture. Names are those
 * of the catalogue, "Sigma/EX 8 mm f:3.5". Without a camera (null) the sensor is taken to be 36 mm
 * along the picture's longer side. */
VARNEL_API varnel_status varnel_lens_from_catalogue(const char* lens, const char* camera,
                                                    varnel_lens** out, varnel_error** error);
/* The lens of that number, from 0 on, of a file: of Varnel's own form (JSON), lensfun's and LCP's
 * XML, OpenCV's, ROS's and Kalibr's calibrations, Gyroflow's profiles, Hugin's projects. */
VARNEL_API varnel_status varnel_lens_from_file(const char* path, size_t number, const char* camera,
                                               varnel_lens** out, varnel_error** error);
/* The names of all lenses of such a file. */
VARNEL_API varnel_status varnel_list_lenses_of_file(const char* path, varnel_names** names,
                                                    varnel_error** error);
/* A curve: angles from the axis in degrees, rising from 0 up to 180, and radii, rising from 0, in
 * any unit: the last one is the radius of the image circle, see varnel_lens_set_circle(). At least
 * two pairs; a monotone cubic goes through them, of which the lens keeps sixteen knots. */
VARNEL_API varnel_status varnel_lens_from_curve(const double* degrees, const double* radii,
                                                size_t count, varnel_lens** out,
                                                varnel_error** error);
/* The camera and lens that took a photo, by its EXIF. VARNEL_NOT_FOUND with the reason where it
 * does not tell. */
VARNEL_API varnel_status varnel_lens_of_photo(const char* path, varnel_lens** out,
                                              varnel_error** error);

typedef struct varnel_measurement {
    size_t edges_found;
    size_t edges_used;
    double
        before; /* root mean square of the bend of edges that were held out, pixels: by the lens */
    double after;       /* that was known, and by the measured one */
    double angle_error; /* expected, degrees */
} varnel_measurement;

/* A lens measured from the straight edges on up to four photos of one size, held alike. Uses 8 bits
 * of them. `known`, the lens that is to be beaten, and `measurement` may be null. */
VARNEL_API varnel_status varnel_lens_measure(const varnel_image* photos, size_t count,
                                             const varnel_lens* known, varnel_lens** out,
                                             varnel_measurement* measurement, varnel_error** error);

VARNEL_API varnel_status varnel_lens_copy(const varnel_lens* lens, varnel_lens** out,
                                          varnel_error** error);
VARNEL_API void varnel_lens_free(varnel_lens* lens);

/* Puts the image circle of pictures of width x height pixels at (x, y) with that radius, in pixels;
 * it is at the limit of the lens's field. Pictures of another size of that shape have it in
 * proportion. */
VARNEL_API varnel_status varnel_lens_set_circle(varnel_lens* lens, double x, double y,
                                                double radius, int32_t width, int32_t height,
                                                varnel_error** error);
/* Finds the circle on a photo and puts it there. VARNEL_NOT_FOUND where the photo has no rim. */
VARNEL_API varnel_status varnel_lens_find_circle(varnel_lens* lens, const varnel_image* photo,
                                                 varnel_error** error);

/* "Canon EOS 5D + Sigma EX 8 mm f:3.5"; lasts as long as the lens and is not changed. */
VARNEL_API const char* varnel_lens_name(const varnel_lens* lens);
/* Degrees from the axis to the border of the image circle. */
VARNEL_API varnel_status varnel_lens_field(const varnel_lens* lens, double* degrees,
                                           varnel_error** error);
/* Writes a lens that is a curve (from a file, a curve, measured): .json exactly, .yaml for OpenCV,
 * .xml for lensfun. An older file is replaced as a whole. */
VARNEL_API varnel_status varnel_lens_write(const varnel_lens* lens, const char* path,
                                           varnel_error** error);

/* ---- Views ---------------------------------------------------------------------------------- */

/* What is made of a picture: projection, turns, size. A new one is "varnel", straight ahead, as
 * large as the photo. */
VARNEL_API varnel_status varnel_view_new(varnel_view** view, varnel_error** error);
VARNEL_API varnel_status varnel_view_copy(const varnel_view* view, varnel_view** out,
                                          varnel_error** error);
VARNEL_API void varnel_view_free(varnel_view* view);
/* Sets one number or choice by its name, see varnel_list_settings() and varnel-convert(1), --set:
 * "Projection" "rectilinear", "OutputAOV" degrees across, "RotateX" degrees (positive looks down),
 * "RotateY" (right), "RotateZ" (counter-clockwise), "TranslateX" percent, "OutputWidth" pixels,
 * "Sampling" "fine" ... The last one of a name counts. */
VARNEL_API varnel_status varnel_view_set(varnel_view* view, const char* name, const char* value,
                                         varnel_error** error);
/* The size in pixels of what is made of a picture of that size. */
VARNEL_API varnel_status varnel_view_size(const varnel_view* view, int32_t width, int32_t height,
                                          int32_t* result_width, int32_t* result_height,
                                          varnel_error** error);

/* ---- Converting ----------------------------------------------------------------------------- */

/* Draws `source`, taken with the lens, as the view has it into `result`, whose size must be what
 * varnel_view_size() says, and whose samples and channels must be the source's. Three and four
 * channels are read and written where they lie; one and two go through a copy. Without a pool
 * (null) all is done on this thread. What of the result shows nothing is black, or as the view's
 * Outside says; with alpha it is transparent only if the view says so. */
VARNEL_API varnel_status varnel_remap(const varnel_lens* lens, const varnel_view* view,
                                      const varnel_image* source, const varnel_image* result,
                                      varnel_pool* pool, varnel_error** error);

/* Points, `count` pairs x, y after each other; `out` may be `points` itself where both have pairs.
 * Sizes are the photo's. A point that is nowhere becomes not a number. */

/* Where on the photo a point of the result is read. */
VARNEL_API varnel_status varnel_result_to_source(const varnel_lens* lens, const varnel_view* view,
                                                 int32_t width, int32_t height,
                                                 const double* points, size_t count, double* out,
                                                 varnel_error** error);
/* Where on the result a point of the photo is drawn; if it is so more than once, at one of these.
 */
VARNEL_API varnel_status varnel_source_to_result(const varnel_lens* lens, const varnel_view* view,
                                                 int32_t width, int32_t height,
                                                 const double* points, size_t count, double* out,
                                                 varnel_error** error);
/* The direction that a point of the photo shows: triples x, y, z. */
VARNEL_API varnel_status varnel_source_to_direction(const varnel_lens* lens, int32_t width,
                                                    int32_t height, const double* points,
                                                    size_t count, double* directions,
                                                    varnel_error** error);
/* Where on the photo a direction lands, of any length but 0; also off the photo, and beyond the
 * field on the curve's continuation. */
VARNEL_API varnel_status varnel_direction_to_source(const varnel_lens* lens, int32_t width,
                                                    int32_t height, const double* directions,
                                                    size_t count, double* points,
                                                    varnel_error** error);

/* ---- Files ---------------------------------------------------------------------------------- */

/* Called with a line of JSON (no line break in it) for each result, written, skipped or failed, as
 * varnel-convert --json prints it; not 0 stops the run. On the thread that called varnel_convert().
 */
typedef int (*varnel_report)(void* user, const char* json);

/* Converts files as varnel-convert does with these words as its arguments, without the program's
 * name: "photo.jpg", "--gear", "auto", "--projection", "rectilinear", "--output-dir", "results" ...
 * Photos are decoded by the confined process of the installed programs. With `user_settings` 0 the
 * defaults and gears of the user do not count, otherwise they do. `report` may be null. VARNEL_OK
 * when all files were written or rightly skipped; otherwise the error's text has a line for each
 * complaint. Nothing is printed. */
VARNEL_API varnel_status varnel_convert(const char* const* words, size_t count, int user_settings,
                                        varnel_report report, void* user, varnel_error** error);

#ifdef __cplusplus
}
#endif

#endif

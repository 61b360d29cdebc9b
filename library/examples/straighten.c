/* SPDX-FileCopyrightText: Varnel developers
 * SPDX-License-Identifier: GPL-3.0-or-later
 *
 * A picture in memory: straighten LENS < photo.ppm > straight.ppm
 * LENS is BRAND/MODEL of the catalogue, such as "Sigma/EX 8 mm f:3.5". */
#include <stdio.h>
#include <stdlib.h>
#include <varnel/varnel.h>

static int fail(const char* what, varnel_error* error) {
    fprintf(stderr, "straighten: %s%s%s\n", what, error ? ": " : "", varnel_error_text(error));
    varnel_error_free(error);
    return EXIT_FAILURE;
}

int main(int argc, char** argv) {
    varnel_lens* lens = NULL;
    varnel_view* view = NULL;
    varnel_pool* pool = NULL;
    varnel_error* error = NULL;
    varnel_image photo = {NULL, 0, 0, 0, 3, VARNEL_UINT8, VARNEL_RGB};
    varnel_image result;
    size_t bytes;

    if (argc != 2) {
        return fail("give a lens", NULL);
    }
    if (scanf("P6 %d %d 255", &photo.width, &photo.height) != 2 || getchar() == EOF ||
        photo.width < 1 || photo.height < 1 || photo.width > 32767 || photo.height > 32767) {
        return fail("no PPM picture of 8 bits comes in", NULL);
    }
    photo.row_bytes = (ptrdiff_t)3 * photo.width;
    bytes = (size_t)photo.row_bytes * (size_t)photo.height;
    photo.pixels = malloc(bytes);
    result = photo;
    result.pixels = malloc(bytes);
    if (!photo.pixels || !result.pixels || fread(photo.pixels, 1, bytes, stdin) != bytes) {
        return fail("the picture cannot be read", NULL);
    }

    if (varnel_lens_from_catalogue(argv[1], NULL, &lens, &error) ||
        varnel_view_new(&view, &error) ||
        varnel_view_set(view, "Projection", "rectilinear", &error) ||
        varnel_view_set(view, "OutputAOV", "100", &error) || varnel_pool_new(0, &pool, &error) ||
        varnel_remap(lens, view, &photo, &result, pool, &error)) {
        return fail(argv[1], error);
    }
    printf("P6 %d %d 255\n", result.width, result.height);
    fwrite(result.pixels, 1, bytes, stdout);

    varnel_pool_free(pool);
    varnel_view_free(view);
    varnel_lens_free(lens);
    free(result.pixels);
    free(photo.pixels);
    return fflush(stdout) == 0 ? EXIT_SUCCESS : fail("the result cannot be written", NULL);
}

// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of types that are read where their library is there.
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

namespace {

constexpr PixelSize modernSize{16, 12};

// 8 bits: the left half has the colour 200, 40, 40, the right one 40, 40, 200.
constexpr const char* heic =
    "AAAAHGZ0eXBoZWljAAAAAG1pZjFoZWljbWlhZgAAAaptZXRhAAAAAAAAACFoZGxyAAAAAAAAAABwaWN0AAAAAAAAAAAA"
    "AAAAAAAAAA5waXRtAAAAAAACAAAAEGlkYXQAAAAAABAADAAAADhpbG9jAQAAAERAAAIAAQAAAAAAAAHOAAEAAAAAAAAA"
    "PQACAAEAAAAAAAAAAQAAAAAAAAAIAAAAOGlpbmYAAAAAAAIAAAAVaW5mZQIAAAEAAQAAaHZjMQAAAAAVaW5mZQIAAAAA"
    "AgAAZ3JpZAAAAADVaXBycAAAALNpcGNvAAAAc2h2Y0MBA3AAAAAAAAAAAAAe8AD8/fj4AAAPAyAAAQAYQAEMAf//A3AA"
    "AAMAkAAAAwAAAwAeugJAIQABACdCAQEDcAAAAwCQAAADAAADAB6gIIEFluqumubAgAAAAwCAAAADAIQiAAEABkQBwXPB"
    "iQAAABRpc3BlAAAAAAAAAEAAAABAAAAAFGlzcGUAAAAAAAAAEAAAAAwAAAAQcGl4aQAAAAADCAgIAAAAGmlwbWEAAAAA"
    "AAAAAgABAoECAAICA4QAAAAaaXJlZgAAAAAAAAAOZGltZwACAAEAAQAAAEVtZGF0AAAAOSgBrxMheGNA5TVT/SqXUgFg"
    "JM+6T6wS+nfS+BVmGiWeyuE9NujzJiU1Skxo5a7tkUejQKRL71x62A==";

// 10 bits: a slope from 128, 0, 0 at the top to 0, 128, 255 at the bottom.
constexpr const char* avif =
    "AAAAIGZ0eXBhdmlmAAAAAGF2aWZtaWYxbWlhZk1BMUEAAAD5bWV0YQAAAAAAAAAvaGRscgAAAAAAAAAAcGljdAAAAAAA"
    "AAAAAAAAAFBpY3R1cmVIYW5kbGVyAAAAAA5waXRtAAAAAAABAAAAHmlsb2MAAAAARAAAAQABAAAAAQAAASEAAAA1AAAA"
    "KGlpbmYAAAAAAAEAAAAaaW5mZQIAAAAAAQAAYXYwMUNvbG9yAAAAAGppcHJwAAAAS2lwY28AAAAUaXNwZQAAAAAAAAAQ"
    "AAAADAAAABBwaXhpAAAAAAMKCgoAAAAMYXYxQ4EgQAAAAAATY29scm5jbHgAAgACAAIAAAAAF2lwbWEAAAAAAAAAAQAB"
    "BAECgwQAAAA9bWRhdAoFOAz+24QyLBKAAABAKKAAjQhR/umkgSk1yMhjJRhy1ZCgWC/lWIs/qnOUEwMAheygrTXw";

// The same slope in 16 bits, without loss.
constexpr const char* jxl =
    "AAAADEpYTCANCocKAAAAFGZ0eXBqeGwgAAAAAGp4bCAAAAAJanhsbAoAAABwanhsY/8KWDD8QAIIAgEAbAFLGJOOg4NJ"
    "UGDaMcbD+sYYXIUYI2KwaC8QDMAEEAHAp7rXXHvNtddce82111x7DRB0vXXXW3e99bz7rm+961vvmpzb37fccssvt9xy"
    "yy+33HLLVqiLqnlTC+8E";

}  // namespace

std::vector<SeedFile> ModernSeeds() {
    return {{"heif/heic", QByteArray::fromBase64(heic), modernSize, false},
            {"heif/avif-10", QByteArray::fromBase64(avif), modernSize, false},
            {"jxl/lossless-deep", QByteArray::fromBase64(jxl), modernSize, false}};
}

}  // namespace varnel::testing

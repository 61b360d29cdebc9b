// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the camera and the lens catalogue have in common: rows of one brand stand together, in the
// order of a list of brands with their counts. The checks run at compile time. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varnel {

struct BrandCount {
    std::string_view brand;
    int models = 0;
};

// Brands in the listed order, each with exactly its number of rows and none left over.
template <class Row>
constexpr bool RowsFollowBrands(std::span<const Row> rows, std::span<const BrandCount> brands) {
    auto row = rows.begin();
    for (const BrandCount& expected : brands) {
        for (int n = 0; n < expected.models; ++n, ++row) {
            if (row == rows.end() || row->brand != expected.brand) {
                return false;
            }
        }
    }
    return row == rows.end();
}

// No brand has two rows of one model name. Expects rows that follow their brands. Plain pointers
// keep this within the number of steps that compilers grant a constant expression.
template <class Row>
constexpr bool ModelsAreUnique(std::span<const Row> rows, std::span<const BrandCount> brands) {
    const Row* first = rows.data();
    for (const BrandCount& brand : brands) {
        const Row* last = first + brand.models;
        for (const Row* row = first; row != last; ++row) {
            for (const Row* other = row + 1; other != last; ++other) {
                if (other->model == row->model) {
                    return false;
                }
            }
        }
        first = last;
    }
    return true;
}

inline QString ToQString(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

inline QStringList BrandNames(std::span<const BrandCount> brands) {
    QStringList names;
    for (const BrandCount& brand : brands) {
        names.append(ToQString(brand.brand));
    }
    return names;
}

template <class Row>
QStringList ModelNames(std::span<const Row> rows, const QString& brand) {
    QStringList names;
    for (const Row& row : rows) {
        if (ToQString(row.brand) == brand) {
            names.append(ToQString(row.model));
        }
    }
    return names;
}

// Compares exactly and with case.
template <class Row>
std::optional<Row> FindRow(std::span<const Row> rows, const QString& brand, const QString& model) {
    const std::string brandText = brand.toStdString();
    const std::string modelText = model.toStdString();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
        return row.brand == brandText && row.model == modelText;
    });
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

}  // namespace varnel

// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/import_lenses.h"

#include "gear/lens/import/calibration.h"
#include "gear/lens/import/hugin_project.h"
#include "gear/lens/import/lcp_profile.h"
#include "gear/lens/import/lensfun_data.h"
#include "gear/lens/import/xml_reading.h"
#include "gear/lens/import/yaml_subset.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

ImportedLenses XmlLenses(const QByteArray& bytes, const QString& fileName) {
    XmlReading xml(bytes);
    if (!xml.NextElement()) {
        return {{}, xml.Error()};
    }
    const QString root = xml.Name();
    if (root == u"lensdatabase") {
        return LensfunLenses(bytes, fileName);
    }
    return root == u"xmpmeta" || root == u"RDF" ? LcpLenses(bytes, fileName)
                                                : ImportedLenses{{}, ReasonCode::NoLensFile};
}

ImportedLenses ObjectLenses(const JsonReading& reading, const QString& fileName) {
    if (!reading.reason.isEmpty()) {
        return {{}, reading.reason};
    }
    if (!reading.object.contains(QStringLiteral("varnel_lens_version"))) {
        return CalibrationLenses(reading.object, fileName);
    }
    const LensReading own = LensFromJson(reading.object);
    return own.lens ? ImportedLenses{{*own.lens}, {}} : ImportedLenses{{}, own.reason};
}

}  // namespace

ImportedLenses ImportLensesFrom(const QByteArray& bytes, const QString& fileName) {
    const QByteArray bom("\xEF\xBB\xBF");
    const QByteArray text = bytes.startsWith(bom) ? bytes.mid(bom.size()) : bytes;
    const QByteArray start = text.left(1000).trimmed();
    if (start.startsWith('<')) {
        return XmlLenses(text, fileName);
    }
    if (start.startsWith('{')) {
        return ObjectLenses(ReadJson(text), fileName);
    }
    if (text.contains('\0')) {
        return {{}, ReasonCode::NoLensFile};
    }
    if (IsHuginProject(text)) {
        return HuginLenses(text, fileName);
    }
    // Lines of any text would be called wrong otherwise.
    const bool calibrates = text.contains("dist") || text.contains("D:");
    return calibrates ? ObjectLenses(ReadYaml(text), fileName)
                      : ImportedLenses{{}, ReasonCode::NoLensFile};
}

ImportedLenses ImportLenses(const QString& path) {
    const FileReading file = ReadSmallFile(path, largestForeignFile);
    if (!file.reason.isEmpty()) {
        return {{}, file.reason};
    }
    ImportedLenses imported = ImportLensesFrom(file.bytes, path);
    if (!imported.reason.isEmpty()) {
        imported.reason = Reason(ReasonCode::Of, path, imported.reason);
    }
    return imported;
}

TakenLenses TakeLenses(const QString& path, const LensFolder& folder) {
    const ImportedLenses imported = ImportLenses(path);
    TakenLenses taken{{}, imported.reason};
    for (SampledLens lens : imported.lenses) {
        lens.name = folder.FreeName(lens.name);
        if (const Reason error = folder.Add(lens); !error.isEmpty()) {
            for (const QString& name : taken.names) {
                folder.Delete(name);
            }
            return {{}, error};
        }
        taken.names.append(lens.name);
    }
    return taken;
}

}  // namespace varnel

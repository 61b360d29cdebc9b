// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// No text of the window bypasses the translation, and there is room for longer ones.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDirIterator>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QTest>

#include "app/start/focus_style.h"
#include "app/start/revision_age.h"
#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "gear/from_photo/photo_gear.h"
#include "gear/store/gear_store.h"
#include "pipeline/conversion/batch_checks.h"
#include "pipeline/conversion/batch_run.h"
#include "pipeline/conversion/batch_summary.h"
#include "pipeline/conversion/morph_sequence.h"
#include "pipeline/conversion/prefetching_reader.h"
#include "pipeline/dialogs/elided_label.h"
#include "pipeline/photos/project_file.h"
#include "state/editing/step_names.h"
#include "state/settings/default_choices.h"
#include "state/settings/settings_store.h"
#include "tests/app/access/every_form.h"
#include "tests/app/access/form_walk.h"
#include "tests/app/access/pseudo_language.h"
#include "tests/support/files.h"
#include "translations/window_language.h"

namespace varnel {
namespace {

using testing::PseudoLanguage;
using testing::ReadTranslations;
using testing::ShowEveryForm;
using testing::Unmarked;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

QString Name(const QObject& object) {
    return object.objectName().isEmpty() ? Q(object.metaObject()->className())
                                         : object.objectName();
}

// What the user reads or has read to him, but for the content of lists and inputs.
QStringList TextsOf(const QObject& object) {
    QStringList texts;
    for (const char* const property :
         {"text", "title", "windowTitle", "toolTip", "statusTip", "whatsThis", "accessibleName",
          "accessibleDescription", "placeholderText", "prefix", "suffix", "plainText"}) {
        if (qobject_cast<const QLineEdit*>(&object) == nullptr || Q(property) != Q("text")) {
            texts.append(object.property(property).toString());
        }
    }
    if (const auto* const list = qobject_cast<const QListWidget*>(&object)) {
        for (int row = 0; row < list->count(); ++row) {
            texts += {list->item(row)->text(), list->item(row)->toolTip()};
        }
    }
    const auto* const drives = qobject_cast<const QComboBox*>(&object);
    if (drives != nullptr && drives->objectName().startsWith(Q("Drive"))) {
        texts.append(drives->itemText(0));
    }
    return texts;
}

QStringList UnmarkedIn(QWidget& form) {
    QStringList found;
    QObjectList objects = form.findChildren<QObject*>();
    objects.append(&form);
    for (const QObject* const object : objects) {
        // The notice is the image library's own, as its licence wants it.
        // Tokens are the same in every language.
        if (object->objectName() == Q("LabelFreeimageNotice") ||
            object->objectName() == Q("TextNamePattern") ||
            object->objectName().startsWith(Q("qt_"))) {
            continue;
        }
        for (const QString& text : TextsOf(*object)) {
            if (!Unmarked(text).isEmpty()) {
                found.append(form.objectName() + u'/' + Name(*object) + Q(": ") + text);
            }
        }
    }
    return found;
}

// The names of gears are the user's and may be long; projections are elided in a narrow column.
bool IsCutChoice(const QComboBox& box) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &box);
    return box.objectName() != Q("GearCombo") && box.objectName() != Q("ProjectionCombo") &&
           !box.visibleRegion().isEmpty() &&
           room.width() < box.fontMetrics().horizontalAdvance(box.currentText());
}

bool IsCut(const QWidget& widget) {
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
        return IsCutChoice(*box);
    }
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    const bool isText = (label != nullptr && !label->text().isEmpty() &&
                         dynamic_cast<const ElidedLabel*>(label) == nullptr) ||
                        qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                        qobject_cast<const QGroupBox*>(&widget) != nullptr ||
                        qobject_cast<const QSpinBox*>(&widget) != nullptr;
    if (!isText || widget.visibleRegion().isEmpty() || widget.objectName().startsWith(Q("qt_"))) {
        return false;
    }
    if (label != nullptr && label->wordWrap()) {
        return widget.height() < widget.heightForWidth(widget.width());
    }
    const bool isGroup = qobject_cast<const QGroupBox*>(&widget) != nullptr;
    const int needed =
        isGroup ? widget.fontMetrics().horizontalAdvance(widget.property("title").toString())
                : std::min(widget.sizeHint().width(), widget.minimumSizeHint().width());
    return widget.visibleRegion().boundingRect().width() < needed;
}

QStringList CutIn(const QWidget& form) {
    QStringList found;
    for (const QWidget* const widget : form.findChildren<QWidget*>()) {
        if (widget->window() == &form && IsCut(*widget)) {
            found.append(form.objectName() + u'/' + Name(*widget) + Q(": ") +
                         widget->property("text").toString() +
                         widget->property("title").toString());
        }
    }
    return found;
}

void ExpectNone(QStringList found) {
    found.removeDuplicates();
    EXPECT_TRUE(found.isEmpty()) << found.join(u'\n').toStdString();
}

TEST(PseudoLanguage, MarksEveryTextOfTheWindowAndCutsNone) {
    const PseudoLanguage pseudo;
    QStringList unmarked;
    QStringList cut;
    ShowEveryForm([&](QWidget& form) {
        unmarked += UnmarkedIn(form);
        cut += CutIn(form);
    });
    ExpectNone(unmarked);
    ExpectNone(cut);
}

TEST(PseudoLanguage, MarksWhatIsTold) {
    const PseudoLanguage pseudo;
    MemoryStore store;
    const auto reader = NewPictureReader();
    ReadingWait wait;
    PrefetchingReader feed(*reader, 0, wait);
    BatchSummary summary;
    summary.queued = 3;
    summary.failures = {{Q("/a/b.bmp"), ErrorText(ReasonCode::FileEmpty)}};
    summary.notes = {{Q("/a/c.bmp"), Joined({ReasonCode::XmpTooLong,
                                             {ReasonCode::TypeHoldsNoSettings, Q("BMP")}})}};
    const QString texts[] = {
        *CheckRevisionAge(store, QDate(2100, 1, 1)),
        NoGearText(),
        GearOfPhoto({}, {}).said,
        SpaceWarning(2, 1),
        SummaryText(summary),
        TimeLeftText(100.0, 0.5),
        std::get<QString>(FrameCountFromText(Q("1.5"))),
        OpenProject(Q(VARNEL_SOURCES "/README.md")).error,
        StepName(SliderId::Z),
        ErrorText(ReasonFor(OverflowError(ReasonCode::OverflowOf32Bits, "TranslateX"))),
        ErrorText(ReasonCode::Cancelled),
        ErrorText(PortsFor(feed).load(Q("/no/such.jpg")).reason),
        ErrorText({ReasonCode::SettingsUnreadable, Q("/x/y"), ReasonCode::NotRegular,
                   ReasonCode::SettingsBeginAfresh}),
    };
    for (const QString& text : texts) {
        EXPECT_TRUE(text.contains(u'[')) << text.toStdString();
        EXPECT_EQ(Unmarked(text), QString()) << text.toStdString();
    }
}

QStringList EveryReason() {
    QStringList told;
    for (int n = static_cast<int>(ReasonCode::Several) + 1; n < static_cast<int>(ReasonCode::Count);
         ++n) {
        const auto code = static_cast<ReasonCode>(n);
        const auto arguments = static_cast<std::size_t>(ArgumentCount(code));
        told.append(ErrorText({code, std::vector<Reason::Argument>(arguments, Q("x"))}));
    }
    return told;
}

struct InLanguage {
    const char* code;
    const char* defaults;  // the title of the dialog
    const char* cancel;    // the toolkit's own
};

constexpr InLanguage walked[] = {{"de", "Vorgaben", "Abbrechen"},
                                 {"es", "Valores predeterminados", "Cancelar"},
                                 {"fr", "Valeurs par défaut", "Annuler"}};

void PrintTo(const InLanguage& language, std::ostream* stream) {
    *stream << language.code;
}

class EachLanguage : public ::testing::TestWithParam<InLanguage> {};

INSTANTIATE_TEST_SUITE_P(Windows, EachLanguage, ::testing::ValuesIn(walked),
                         [](const auto& language) { return std::string(language.param.code); });

TEST(Languages, OfTheDefaultsIsWalked) {
    ASSERT_EQ(std::size(walked), languages.size() - 1);
    for (std::size_t n = 0; n < std::size(walked); ++n) {
        EXPECT_EQ(languages[n + 1].code, Q(walked[n].code));
    }
}

TEST_P(EachLanguage, HasWordsForEveryReason) {
    const QStringList english = EveryReason();
    const WindowLanguage language(*qApp, Q(GetParam().code));
    const QStringList told = EveryReason();
    for (qsizetype n = 0; n < told.size(); ++n) {
        EXPECT_NE(told[n], english[n]) << english[n].toStdString();
    }
}

TEST_P(EachLanguage, KeepsPlaceholdersAndLettersToPress) {
    static const QRegularExpression special(Q("%[1-9]"));
    const auto placeholders = [](const QString& text) {
        QStringList all;
        for (auto found = special.globalMatch(text); found.hasNext();) {
            all.append(found.next().captured());
        }
        all.sort();
        return all;
    };
    const auto hasLetter = [](const QString& text) {
        return !QKeySequence::mnemonic(text).isEmpty();
    };
    const auto translations =
        ReadTranslations(Q(VARNEL_SOURCES "/translations/varnel_%1.ts").arg(Q(GetParam().code)));
    EXPECT_GT(translations.size(), 600);
    for (const auto& [source, told] : translations.asKeyValueRange()) {
        EXPECT_FALSE(told.isEmpty()) << source.text.toStdString();
        EXPECT_EQ(placeholders(source.text), placeholders(told)) << told.toStdString();
        EXPECT_EQ(hasLetter(source.text), hasLetter(told)) << told.toStdString();
        EXPECT_EQ(source.text.startsWith(u' '), told.startsWith(u' ')) << told.toStdString();
        EXPECT_EQ(source.text.endsWith(u' '), told.endsWith(u' ')) << told.toStdString();
    }
}

TEST_P(EachLanguage, FitsTheFormsAndHasALetterForEachControl) {
    QApplication::setStyle(new FocusStyle);
    const WindowLanguage language(*qApp, Q(GetParam().code));
    QStringList faults;
    bool isTranslated = false;
    ShowEveryForm([&](QWidget& form) {
        faults += CutIn(form) + testing::FaultsOf(form);
        isTranslated = isTranslated || form.windowTitle() == Q(GetParam().defaults);
    });
    ExpectNone(faults);
    EXPECT_TRUE(isTranslated);
}

TEST_P(EachLanguage, HasTheStandardButtons) {
    const auto cancel = [] {
        const QMessageBox box(QMessageBox::Question, {}, {},
                              QMessageBox::Save | QMessageBox::Cancel);
        return box.button(QMessageBox::Cancel)->text();
    };
    EXPECT_EQ(cancel(), Q("Cancel"));
    const WindowLanguage language(*qApp, Q(GetParam().code));
    EXPECT_EQ(cancel(), Q(GetParam().cancel));
}

}  // namespace
}  // namespace varnel

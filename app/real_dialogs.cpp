// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/real_dialogs.h"

#include <QCoreApplication>

#include "app/form_about.h"
#include "gear/form_gear_edit.h"
#include "gear/form_gear_list.h"
#include "pipeline/form_add_images.h"
#include "state/form_setup.h"

namespace varnel {

bool RealDialogs::AddImages(QWidget* parent) {
    const int before = state_.Images.UpperBound();
    FormAddImages form(state_.Images, store_, notices_, QCoreApplication::applicationDirPath(),
                       parent);
    form.exec();
    return state_.Images.UpperBound() > before;
}

void RealDialogs::ManageGears(QWidget* parent) {
    FormGearList form(
        state_.Gear, store_,
        [parent](GearTable& gears) {
            FormGearEdit editor(gears, parent);
            editor.exec();
        },
        parent);
    form.exec();
}

void RealDialogs::ChangeDefaults(QWidget* parent) {
    FormSetup form(state_.Gear, state_.settings, store_, parent);
    form.exec();
}

void RealDialogs::ShowAbout(QWidget* parent) {
    FormAbout form(parent);
    form.exec();
}

}  // namespace varnel

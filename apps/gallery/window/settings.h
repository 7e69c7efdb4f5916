/// \file
/// The settings of a list, found by its meta-object, and the code that makes them.
#pragma once

#include "model/property_row.h"
#include "qt/lumtex_list_view.h"

#include <QMetaProperty>
#include <QString>
#include <vector>

namespace lumtex::gallery {

/// All that are kept with a form, in the order of the interface.
std::vector<QMetaProperty> allSettings();

/// Those that a new list has not, with their values.
std::vector<QMetaProperty> changedSettings(const LumtexListView& list);

bool isNewValue(const LumtexListView& list, const QMetaProperty& setting);

/// What the reference says of it, in one or two sentences.
QString helpOf(const QMetaProperty& setting);
/// Where it stands in property windows.
Group groupOf(const QMetaProperty& setting);
/// "px", "twips", "rows", or nothing: what a number of this setting counts.
QString unitOf(const QMetaProperty& setting);

/// Where the picture of a setting was read from, which code can name. None is known for others.
void setPictureFile(LumtexListView& list, const QMetaProperty& setting, const QString& file);

/// A line for each changed setting, for a list called "list". A picture whose file is not known becomes a
/// comment.
QString settingsAsCpp(const LumtexListView& list);
QString settingsAsVbScript(const LumtexListView& list);

} // namespace lumtex::gallery

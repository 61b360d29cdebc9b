--[[
SPDX-FileCopyrightText: Varnel developers
SPDX-License-Identifier: GPL-3.0-or-later

Straighten with Varnel: a target of darktable's export. The developed photo is handed over as a TIFF
of 16 bits with its metadata, varnel-convert makes a TIFF of 16 bits of it, and that is imported
beside the photo. Names are numbered, nothing is replaced.

To use it copy this file to ~/.config/darktable/lua and add the line
  require "varnel"
to ~/.config/darktable/luarc; then choose "Straighten with Varnel" and the format TIFF in the export
module.
]]

local dt = require "darktable"

local texts = {
  de = {
    ["Straighten with Varnel"] = "Mit Varnel geraderichten",
    ["preset"] = "Vorlage",
    ["photos for Varnel are exported as TIFF"] = "Fotos für Varnel werden als TIFF exportiert",
    ["straightened: %d"] = "geradegerichtet: %d",
    ["not straightened: %s"] = "nicht geradegerichtet: %s",
    ["varnel-convert gives no presets; is it installed?"] =
      "varnel-convert nennt keine Vorlagen; ist es installiert?",
  },
  es = {
    ["Straighten with Varnel"] = "Enderezar con Varnel",
    ["preset"] = "ajuste",
    ["photos for Varnel are exported as TIFF"] = "las fotos para Varnel se exportan como TIFF",
    ["straightened: %d"] = "enderezadas: %d",
    ["not straightened: %s"] = "no enderezada: %s",
    ["varnel-convert gives no presets; is it installed?"] =
      "varnel-convert no da ajustes; ¿está instalado?",
  },
  fr = {
    ["Straighten with Varnel"] = "Redresser avec Varnel",
    ["preset"] = "préréglage",
    ["photos for Varnel are exported as TIFF"] = "les photos pour Varnel sont exportées en TIFF",
    ["straightened: %d"] = "redressées : %d",
    ["not straightened: %s"] = "non redressée : %s",
    ["varnel-convert gives no presets; is it installed?"] =
      "varnel-convert ne donne pas de préréglages ; est-il installé ?",
  },
}

local function translated(text)
  local language = (os.getenv("LC_ALL") or os.getenv("LC_MESSAGES") or os.getenv("LANG") or "")
  local own = texts[language:sub(1, 2)]
  return own and own[text] or text
end

-- One word of a shell's command line.
local function quoted(word)
  return "'" .. word:gsub("'", "'\\''") .. "'"
end

-- The lines that a command prints, and whether it ended well.
local function lines_of(command)
  local lines = {}
  local pipe = io.popen(command)
  if not pipe then
    return lines, false
  end
  for line in pipe:lines() do
    table.insert(lines, line)
  end
  local well = pipe:close()
  return lines, well == true
end

local presets = lines_of("varnel-convert --list-presets 2> /dev/null")

local chooser = dt.new_widget("combobox") {
  label = translated("preset"),
  table.unpack(presets),
}

-- The command that converts an exported file into a folder, where the developed photo's metadata
-- tell the lens. Complaints come with what it prints, in front of which Varnel's name stands.
local function command_for(exported, folder, preset)
  return "varnel-convert --gear guess --keep-both --preset " .. quoted(preset)
    .. " --type tiff --depth 16 --output-dir " .. quoted(folder)
    .. " -- " .. quoted(exported) .. " 2>&1"
end

local function is_tiff(_, format)
  return format.extension == "tif"
end

-- However the format stands in the export module, no bit is to be lost. Setting it before the export
-- begins has no effect (darktable 4.2), so such a file is written again.
local function deepen(image, format, exported)
  if format.bpp >= 16 then
    return
  end
  local deep = dt.new_format("tiff")
  deep.bpp = 16
  deep.max_width = format.max_width
  deep.max_height = format.max_height
  deep:write_image(image, exported)
end

local function convert(_, image, format, exported)
  local preset = chooser.value
  if not preset or preset == "" then
    dt.print(translated("varnel-convert gives no presets; is it installed?"))
    os.remove(exported)
    return
  end
  deepen(image, format, exported)
  local lines, well = lines_of(command_for(exported, image.path, preset))
  os.remove(exported)
  local count = 0
  for _, line in ipairs(lines) do
    if line:sub(1, 16) == "varnel-convert: " then
      dt.print_log(line)
    else
      local result = dt.database.import(line)
      if result then
        result:group_with(image)
      end
      count = count + 1
    end
  end
  if well and count > 0 then
    dt.print(string.format(translated("straightened: %d"), count))
  else
    dt.print_error(table.concat(lines, "\n"))
    dt.print(string.format(translated("not straightened: %s"), lines[1] or image.filename))
  end
end

dt.register_storage("varnel", translated("Straighten with Varnel"), convert, nil, is_tiff, nil,
  chooser)

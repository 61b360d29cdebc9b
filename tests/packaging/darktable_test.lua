-- The export script with a darktable that only says what it is asked for:
-- darktable_test.lua SCRIPT FOLDER-OF-THE-PHOTO EXPORTED-FILE PRESET BITS
local script, folder, exported, preset, bits = table.unpack(arg)

local combobox
local storage
package.loaded["darktable"] = {
  new_widget = function(kind)
    assert(kind == "combobox", kind)
    return function(fields)
      combobox = fields
      return fields
    end
  end,
  database = {
    import = function(path)
      print("import " .. path)
      return { group_with = function(_, image) assert(image.path == folder) end }
    end,
  },
  print = function(text) print("says " .. text) end,
  print_log = print,
  print_error = function(text) print("error " .. text) end,
  new_format = function(kind)
    assert(kind == "tiff", kind)
    return {
      write_image = function(format, image, path)
        assert(format.bpp == 16 and format.max_width == 99 and image.path == folder and path == exported)
        print("again with 16 bits")
      end,
    }
  end,
  register_storage = function(name, label, store, finalize, supported, initialize, widget)
    assert(name == "varnel" and label ~= "" and finalize == nil and initialize == nil and widget == combobox)
    storage = { store = store, supported = supported }
  end,
}
dofile(script)

local offered = {}
for _, name in ipairs(combobox) do
  offered[name] = true
end
assert(offered[preset], "the preset is offered")
combobox.value = preset

assert(storage.supported({}, { extension = "tif" }) and not storage.supported({}, { extension = "jpg" }))
local format = { extension = "tif", bpp = tonumber(bits), max_width = 99, max_height = 0 }
local image = { path = folder, filename = "IMG_0001.RAW" }
storage.store({}, image, format, exported, 1, 1, true, {})

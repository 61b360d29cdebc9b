# The libraries of films. Defines FFmpeg::avformat, FFmpeg::avcodec, FFmpeg::swscale and FFmpeg::avutil.
include(FindPackageHandleStandardArgs)
set(FFmpeg_vars)
foreach(part avformat avcodec swscale avutil)
  find_path(FFmpeg_${part}_INCLUDE_DIR lib${part}/${part}.h)
  find_library(FFmpeg_${part}_LIBRARY ${part})
  list(APPEND FFmpeg_vars FFmpeg_${part}_LIBRARY FFmpeg_${part}_INCLUDE_DIR)
endforeach()
find_package_handle_standard_args(FFmpeg REQUIRED_VARS ${FFmpeg_vars})
if(FFmpeg_FOUND)
  foreach(part avformat avcodec swscale avutil)
    if(NOT TARGET FFmpeg::${part})
      add_library(FFmpeg::${part} UNKNOWN IMPORTED)
      set_target_properties(FFmpeg::${part} PROPERTIES
        IMPORTED_LOCATION ${FFmpeg_${part}_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${FFmpeg_${part}_INCLUDE_DIR})
    endif()
  endforeach()
endif()

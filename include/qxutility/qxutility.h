// The whole interface of the library on this platform.
#pragma once

#include <qxutility/config/ini_file.h>
#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/core/flags.h>
#include <qxutility/core/numbers.h>
#include <qxutility/core/text.h>
#include <qxutility/core/time_text.h>
#include <qxutility/engineering/atmosphere.h>
#include <qxutility/engineering/geometry.h>
#include <qxutility/engineering/point_array.h>
#include <qxutility/engineering/units.h>
#include <qxutility/env/directories.h>
#include <qxutility/env/first_run.h>
#include <qxutility/env/worker_thread.h>
#include <qxutility/formats/compression.h>
#include <qxutility/formats/crc.h>
#include <qxutility/formats/log_file.h>
#include <qxutility/formats/text_file.h>
#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>
#include <qxutility/host.h>
#include <qxutility/ui/dialog_fields.h>
#include <qxutility/ui/warning_list.h>
#include <qxutility/ui/window_layout.h>

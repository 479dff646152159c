// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ALLEDITORS_H
#define ALLEDITORS_H

#include <HbMFColorWidget.h>
#include <HbMFDefaultFieldWidget.h>
#include <HbMFFloatWidget.h>
#include <HbMFInt32Widget.h>
#include <HbMFLineWidget.h>
#include <HbMFMatrixWidget.h>
#include <HbMFPlaneWidget.h>
#include <HbMFRotationWidget.h>
#include <HbMFShortWidget.h>
#include <HbMFStringWidget.h>
#include <HbMFUInt32Widget.h>
#include <HbMFUShortWidget.h>
#include <HbMFVec2fWidget.h>
#include <HbMFVec2i32Widget.h>
#include <HbMFVec2sWidget.h>
#include <HbMFVec3fWidget.h>
#include <HbMFVec4fWidget.h>
#include <HbMFieldTable.h>
#include <HbSFBitMaskWidget.h>
#include <HbSFBoolWidget.h>
#include <HbSFBox3sWidget.h>
#include <HbSFColorWidget.h>
#include <HbSFEnumWidget.h>
#include <HbSFFloatWidget.h>
#include <HbSFImageWidget.h>
#include <HbSFInt32Widget.h>
#include <HbSFLineWidget.h>
#include <HbSFMatrixWidget.h>
#include <HbSFNameWidget.h>
#include <HbSFPlaneWidget.h>
#include <HbSFRotationWidget.h>
#include <HbSFShortWidget.h>
#include <HbSFStringWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFUShortWidget.h>
#include <HbSFVec2fWidget.h>
#include <HbSFVec2i32Widget.h>
#include <HbSFVec2sWidget.h>
#include <HbSFVec3fWidget.h>
#include <HbSFVec4fWidget.h>

#endif

#pragma once

#include "TodayChordExtension/diagram/scene.h"
#include "Tonelake/foundation/json.h"

namespace todaychord {

/// A scene for programs that draw it themselves:
///
///   {"width":76,"height":76,"title":"…","description":"…","items":[…]}
///
/// An item is one of
///
///   {"path":[["M",0,8],["L",9,8],["C",1,2,3,4,5,6],["Z"]],"fill":PAINT,
///    "stroke":{"paint":PAINT,"width":1,"miterLimit":10,"cap":"butt","join":"miter"},"opacity":1}
///   {"text":"C major","font":{"name":"…","size":17},"anchor":"middle","at":[85,28],"color":COLOR}
///   {"image":"metronome","frame":[x,y,width,height],"tint":COLOR}
///   {"link":"zyndle://widget/tuner","frame":[x,y,width,height],"label":"Tuner"}
///   {"group":"diagram","items":[…]}
///
/// fill or stroke is left out where there is none. COLOR is {"color":"#2A004E","opacity":0.85};
/// PAINT is a COLOR, {"linear":{"start":[x,y],"end":[x,y],"stops":[{"place":0,"color":"#…",
/// "opacity":1},…]}} or {"radial":{"centre":[x,y],"radius":200,"stops":[…]}}.
tonelake::json::Value encodeScene(const Scene& scene);

}  // namespace todaychord

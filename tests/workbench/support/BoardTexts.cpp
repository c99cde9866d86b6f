#include "tests/workbench/support/BoardTexts.h"

namespace {

const QByteArray twoLayers = R"(    (0 "F.Cu" signal)
    (31 "B.Cu" signal)
    (39 "F.Mask" user)
)";

/** Bare words and flags, hexadecimal stamps, modules, net classes in the file. */
const QByteArray version5 = R"((kicad_pcb (version 20171130) (host pcbnew 5.1.9)

  (general
    (thickness 1.6)
    (tracks 2)
  )

  (page A4)
  (layers
    (0 F.Cu signal)
    (1 In1.Cu signal)
    (2 In2.Cu power)
    (31 B.Cu signal)
    (38 B.Mask user hide)
    (39 F.Mask user)
  )

  (setup
    (via_size 0.8)
    (via_drill 0.4)
    (pad_to_mask_clearance 0.05)
    (pcbplotparams
      (viasonmask false)
      (outputdirectory ""))
  )

  (net 0 "")
  (net 1 GND)
  (net 2 /DATA)
  (net_class Default "the usual"
    (clearance 0.2)
    (via_dia 0.8)
    (via_drill 0.4)
    (add_net /DATA)
    (add_net GND)
  )

  (module Lib:R_0603 locked (layer B.Cu) (tedit 5E203811) (tstamp 5E203812)
    (at 12.5 34.25 90)
    (path /5E203813)
    (attr smd)
    (fp_text reference R1 (at 0 -1.43 90) (layer B.SilkS) hide
      (effects (font (size 1 1) (thickness 0.15)))
    )
    (fp_text value "4k7 1%" (at 0 1.43 90) (layer B.Fab)
      (effects (font (size 1 1) (thickness 0.15)))
    )
    (fp_line (start -1 0) (end 1 0) (layer B.SilkS) (width 0.12))
    (pad 1 smd roundrect (at -0.8 0 90) (size 0.9 1) (layers B.Cu B.Mask) (roundrect_rratio 0.25)
      (net 1 GND))
    (pad 2 smd roundrect (at 0.8 0 90) (size 0.9 1) (layers B.Cu B.Mask) (roundrect_rratio 0.25)
      (net 2 /DATA))
  )

  (segment (start 1 1) (end 2 1) (width 0.2) (layer F.Cu) (net 1) (tstamp 5E203814) (status 40000))
  (via (at 3 4) (size 0.8) (drill 0.4) (layers F.Cu B.Cu) (net 1))
  (via blind locked (at 5 4) (size 0.8) (drill 0.4) (layers F.Cu In1.Cu) (net 2))
)
)";

const QByteArray version6 = R"((kicad_pcb (version 20211014) (generator pcbnew)

  (general
    (thickness 1.6)
  )

  (paper "A4")
  (layers
    (0 "F.Cu" signal)
    (1 "In1.Cu" signal)
    (2 "In2.Cu" power "ground")
    (31 "B.Cu" signal)
    (38 "B.Mask" user)
    (39 "F.Mask" user)
  )

  (setup
    (pad_to_mask_clearance 0.05)
  )

  (net 0 "")
  (net 1 "GND")
  (net 2 "/DATA")

  (footprint "Lib:R_0603" locked (layer "B.Cu")
    (tedit 5E203811) (tstamp 0bd75fc4-14d2-45c0-a47a-ac9dce3782c8)
    (at 12.5 34.25 90)
    (property "Sheetfile" "board.kicad_sch")
    (path "/5e203813-0000-0000-0000-000000000000")
    (attr smd)
    (fp_text reference "R1" (at 0 -1.43 90) (layer "B.SilkS") hide
      (effects (font (size 1 1) (thickness 0.15)))
      (tstamp 4ac19122-2534-4c2b-833b-1fdaad10536f)
    )
    (fp_text value "4k7 1%" (at 0 1.43 90) (layer "B.Fab")
      (effects (font (size 1 1) (thickness 0.15)))
      (tstamp 85e7d2c9-6e6e-4f6e-8f3e-1fdaad10536f)
    )
    (fp_line (start -1 0) (end 1 0) (layer "B.SilkS") (width 0.12) (tstamp 1fdaad10-6e6e-4f6e-8f3e-85e7d2c9536f))
    (pad "1" smd roundrect locked (at -0.8 0 90) (size 0.9 1) (layers "B.Cu" "B.Mask") (roundrect_rratio 0.25)
      (net 1 "GND") (pintype "passive") (tstamp 44237ea9-e733-43a4-8225-f85b7c66a86c))
    (pad "2" smd roundrect locked (at 0.8 0 90) (size 0.9 1) (layers "B.Cu" "B.Mask") (roundrect_rratio 0.25)
      (net 2 "/DATA") (pintype "passive") (tstamp 44237ea9-e733-43a4-8225-f85b7c66a86d))
  )

  (segment locked (start 1 1) (end 2 1) (width 0.2) (layer "F.Cu") (net 1) (tstamp 44237ea9-e733-43a4-8225-0000))
  (via (at 3 4) (size 0.8) (drill 0.4) (layers "F.Cu" "B.Cu") (free) (net 1) (tstamp 44237ea9-0000-43a4-8225-0000))
  (via blind locked (at 5 4) (size 0.8) (drill 0.4) (layers "F.Cu" "In1.Cu") (net 2) (tstamp 4423-0000-43a4-8225-0000))
)
)";

/** Flags as lists, quoted uuids, fields as properties with a place, one token to the line. */
const QByteArray version8 = R"((kicad_pcb
	(version 20240108)
	(generator "pcbnew")
	(generator_version "8.0")
	(general
		(thickness 1.6)
		(legacy_teardrops no)
	)
	(paper "A4")
	(layers
		(0 "F.Cu" signal)
		(1 "In1.Cu" signal)
		(2 "In2.Cu" power)
		(31 "B.Cu" signal)
		(38 "B.Mask" user)
		(39 "F.Mask" user)
	)
	(setup
		(pad_to_mask_clearance 0.05)
		(allow_soldermask_bridges_in_footprints no)
	)
	(net 0 "")
	(net 1 "GND")
	(net 2 "/DATA")
	(footprint "Lib:R_0603"
		(locked yes)
		(layer "B.Cu")
		(uuid "0bd75fc4-14d2-45c0-a47a-ac9dce3782c8")
		(at 12.5 34.25 90)
		(property "Reference" "R1"
			(at 0 -1.43 90)
			(layer "B.SilkS")
			(hide yes)
			(uuid "4ac19122-2534-4c2b-833b-1fdaad10536f")
			(effects
				(font
					(size 1 1)
					(thickness 0.15)
				)
			)
		)
		(property "Value" "4k7 1%"
			(at 0 1.43 90)
			(layer "B.Fab")
			(uuid "85e7d2c9-6e6e-4f6e-8f3e-1fdaad10536f")
			(effects
				(font
					(size 1 1)
					(thickness 0.15)
				)
			)
		)
		(path "/5e203813-0000-0000-0000-000000000000")
		(attr smd)
		(fp_line
			(start -1 0)
			(end 1 0)
			(stroke
				(width 0.12)
				(type solid)
			)
			(layer "B.SilkS")
			(uuid "1fdaad10-6e6e-4f6e-8f3e-85e7d2c9536f")
		)
		(pad "1" smd roundrect
			(at -0.8 0 90)
			(size 0.9 1)
			(layers "B.Cu" "B.Mask")
			(roundrect_rratio 0.25)
			(net 1 "GND")
			(pintype "passive")
			(uuid "44237ea9-e733-43a4-8225-f85b7c66a86c")
		)
		(pad "2" smd roundrect
			(at 0.8 0 90)
			(size 0.9 1)
			(layers "B.Cu" "B.Mask")
			(roundrect_rratio 0.25)
			(net 2 "/DATA")
			(pintype "passive")
			(uuid "44237ea9-e733-43a4-8225-f85b7c66a86d")
		)
	)
	(segment
		(start 1 1)
		(end 2 1)
		(width 0.2)
		(locked yes)
		(layer "F.Cu")
		(net 1)
		(uuid "44237ea9-e733-43a4-8225-000000000001")
	)
	(via
		(at 3 4)
		(size 0.8)
		(drill 0.4)
		(layers "F.Cu" "B.Cu")
		(free yes)
		(net 1)
		(uuid "44237ea9-e733-43a4-8225-000000000002")
	)
	(via blind
		(at 5 4)
		(size 0.8)
		(drill 0.4)
		(layers "F.Cu" "In1.Cu")
		(locked yes)
		(net 2)
		(uuid "44237ea9-e733-43a4-8225-000000000003")
	)
)
)";

/** Texts that must be there are replaced; the rest of one version is that of the one before. */
QByteArray Changed(QByteArray text, std::initializer_list<std::pair<const char*, const char*>> changes)
{
    for (const auto& [before, after] : changes) {
        Q_ASSERT(text.contains(before));
        text.replace(before, after);
    }
    return text;
}

QByteArray Version7()
{
    return Changed(version6, {{"20211014", "20221018"},
                              {"(tedit 5E203811) ", ""},
                              {"(width 0.12)", "(stroke (width 0.12) (type solid))"},
                              {"roundrect locked", "roundrect"}});
}

QByteArray Version9()
{
    return Changed(version8, {{"20240108", "20241229"},
                              {"\"8.0\"", "\"9.0\""},
                              {"(31 \"B.Cu\" signal)", "(2 \"B.Cu\" signal)"},
                              {"(1 \"In1.Cu\" signal)", "(4 \"In1.Cu\" signal)"},
                              {"(2 \"In2.Cu\" power)", "(6 \"In2.Cu\" power)"},
                              {"(38 \"B.Mask\" user)", "(3 \"B.Mask\" user)"},
                              {"(39 \"F.Mask\" user)", "(1 \"F.Mask\" user)"},
                              {"(allow_soldermask_bridges_in_footprints no)", "(tenting front back)"}});
}

} // namespace

QByteArray BoardTexts::BoardWithLayers(const QByteArray& layers, const QByteArray& elements)
{
    return "(kicad_pcb (version 20221018) (generator pcbnew)\n  (layers\n" + layers
           + "  )\n  (net 0 \"\")\n  (net 1 \"GND\")\n  (net 2 \"/I{slash}O\")\n" + elements + "\n)\n";
}

QByteArray BoardTexts::Board(const QByteArray& elements)
{
    return BoardWithLayers(twoLayers, elements);
}

QByteArray BoardTexts::Footprint(const QByteArray& elements)
{
    return "  (footprint \"Lib:Part\" (layer \"F.Cu\") (at 0 0) (property \"Reference\" \"U1\")\n" + elements + "\n  )";
}

QByteArray BoardTexts::StackedPads()
{
    const QByteArray package = Footprint(R"re((pad 1 smd rect (at -4 0) (size 1 0.5) (layers F.Cu) (net 1 GND))
    (pad 2 smd rect (at 0 0) (size 5 5) (layers F.Cu) (net 1 GND))
    (pad 2 thru_hole circle (at 0 0) (size 1 1) (drill 0.4) (layers *.Cu) (net 1 GND))
    (pad 2 thru_hole circle (at -1.5 0) (size 1 1) (drill 0.4) (layers *.Cu) (net 1 GND))
    (pad 2 thru_hole circle (at 1.5 0) (size 1 1) (drill 0.4) (layers *.Cu) (net 1 GND)))re");
    QByteArray tracks;
    for (const QByteArray layer : {"F.Cu", "In1.Cu", "B.Cu"}) {
        for (const QByteArray x : {"0", "-1.5", "1.7", "-0.6"}) {
            tracks += "  (segment (start " + x + " 0) (end " + x + " 9) (width 0.2) (layer " + layer + ") (net 1))\n";
        }
    }
    tracks += "  (segment (start 0 0) (end -4 0) (width 0.2) (layer F.Cu) (net 1))\n";
    const QByteArray layers =
        "    (0 F.Cu signal)\n    (1 In1.Cu signal)\n    (2 In2.Cu signal)\n    (31 B.Cu signal)\n";
    return BoardWithLayers(layers, package + '\n' + package + '\n' + tracks);
}

QByteArray BoardTexts::InDialect(int version)
{
    switch (version) {
    case 5: return version5;
    case 6: return version6;
    case 7: return Version7();
    case 8: return version8;
    default: return Version9();
    }
}

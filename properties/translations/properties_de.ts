<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TLineEdit</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>TPropertyColor</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>TPropertyFloatSpin</name>
    <message>
        <source>En</source>
        <translation>An</translation>
    </message>
</context>
<context>
    <name>TPropertyLayer</name>
    <message>
        <source>Layer %1</source>
        <translation>Lage %1</translation>
    </message>
</context>
<context>
    <name>TPropertyPadShape</name>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Octangle</source>
        <translation>Achteck</translation>
    </message>
    <message>
        <source>Obround</source>
        <translation>Langrund</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Octangle(long)</source>
        <translation>Achteck (lang)</translation>
    </message>
</context>
<context>
    <name>TPropertyPenStyle</name>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dash</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Dash dot</source>
        <translation>Strich-Punkt</translation>
    </message>
    <message>
        <source>Dash dot dot</source>
        <translation>Strich-Punkt-Punkt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>TPropertySetForHole</name>
    <message>
        <source>Hole</source>
        <translation>Bohrung</translation>
    </message>
    <message>
        <source>Diameter:</source>
        <translation>Durchmesser:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
</context>
<context>
    <name>TPropertySetForKeepout</name>
    <message>
        <source>Keepout polygons</source>
        <translation>Sperrflächen</translation>
    </message>
</context>
<context>
    <name>TPropertySetForMilling</name>
    <message>
        <source>Milling</source>
        <translation>Fräsung</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
</context>
<context>
    <name>TPropertySetForNetTiePcb</name>
    <message>
        <source>Net Tie</source>
        <translation>Netzbrücke</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Pad size:</source>
        <translation>Padgröße:</translation>
    </message>
    <message>
        <source>Wire width:</source>
        <translation>Leiterbreite:</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Id:</source>
        <translation>Id:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForNetTieSch</name>
    <message>
        <source>Net Tie</source>
        <translation>Netzbrücke</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Symbol:</source>
        <translation>Symbol:</translation>
    </message>
    <message>
        <source>Symbol 1</source>
        <translation>Symbol 1</translation>
    </message>
    <message>
        <source>Symbol 2</source>
        <translation>Symbol 2</translation>
    </message>
    <message>
        <source>Symbol 3</source>
        <translation>Symbol 3</translation>
    </message>
    <message>
        <source>Id:</source>
        <translation>Id:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForOutline</name>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Line length:</source>
        <translation>Linienlänge:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPackage</name>
    <message>
        <source>Package</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <source>RefDes:</source>
        <translation>Bezeichner:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Package:</source>
        <translation>Gehäuse:</translation>
    </message>
    <message>
        <source>Id:</source>
        <translation>Id:</translation>
    </message>
    <message>
        <source>Lock:</source>
        <translation>Sperren:</translation>
    </message>
    <message>
        <source>RefDes</source>
        <translation>Bezeichner</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Side:</source>
        <translation>Seite:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPad</name>
    <message>
        <source>Pad</source>
        <translation>Pad</translation>
    </message>
    <message>
        <source>Pads</source>
        <translation>Pads</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nummer:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Drill:</source>
        <translation>Bohrung:</translation>
    </message>
    <message>
        <source>Side:</source>
        <translation>Seite:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>SMT</source>
        <translation>SMT</translation>
    </message>
    <message>
        <source>THT</source>
        <translation>THT</translation>
    </message>
    <message>
        <source>Size (W x H):</source>
        <translation>Größe (B x H):</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>Form:</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Obround</source>
        <translation>Langrund</translation>
    </message>
    <message>
        <source>Octagon</source>
        <translation>Achteck</translation>
    </message>
    <message>
        <source>Thermal:</source>
        <translation>Wärmefalle:</translation>
    </message>
    <message>
        <source>By pour</source>
        <translation>Wie Fläche</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Mask:</source>
        <translation>Lötstopp:</translation>
    </message>
    <message>
        <source>Paste:</source>
        <translation>Lotpaste:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPour</name>
    <message>
        <source>Pour</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Pours</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>Fill type:</source>
        <translation>Füllung:</translation>
    </message>
    <message>
        <source>No fill</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>H-Lines</source>
        <translation>Waagerechte Linien</translation>
    </message>
    <message>
        <source>V-Lines</source>
        <translation>Senkrechte Linien</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
    </message>
    <message>
        <source>Minimum area:</source>
        <translation>Mindestfläche:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Only connected:</source>
        <translation>Nur verbundene:</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Vorrang:</translation>
    </message>
    <message>
        <source>Clearance to etch:</source>
        <translation>Abstand zu Kupfer:</translation>
    </message>
    <message>
        <source>Clearance to border:</source>
        <translation>Abstand zum Rand:</translation>
    </message>
    <message>
        <source>Clearance to pour:</source>
        <translation>Abstand zu Flächen:</translation>
    </message>
    <message>
        <source>Thermal enable:</source>
        <translation>Wärmefallen:</translation>
    </message>
    <message>
        <source>Thermal line:</source>
        <translation>Stegbreite:</translation>
    </message>
    <message>
        <source>Thermal isolation:</source>
        <translation>Wärmefallenabstand:</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Net:</source>
        <translation>Netz:</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Deckkraft</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPrimitives</name>
    <message>
        <source>Primitive</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Primitives</source>
        <translation>Zeichnungen</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Line style:</source>
        <translation>Linienart:</translation>
    </message>
    <message>
        <source>Fill style:</source>
        <translation>Füllung:</translation>
    </message>
    <message>
        <source>No fill</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Horiz.</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vert.</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Diag. Fwd</source>
        <translation>Schräg fallend</translation>
    </message>
    <message>
        <source>Diag. Bck</source>
        <translation>Schräg steigend</translation>
    </message>
    <message>
        <source>Diag. Cross</source>
        <translation>Schräges Gitter</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForText</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektor</translation>
    </message>
    <message>
        <source>True Type</source>
        <translation>True Type</translation>
    </message>
    <message>
        <source>Font name:</source>
        <translation>Schriftart:</translation>
    </message>
    <message>
        <source>Font size:</source>
        <translation>Schriftgröße:</translation>
    </message>
    <message>
        <source>Bold:</source>
        <translation>Fett:</translation>
    </message>
    <message>
        <source>Italic:</source>
        <translation>Kursiv:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Angle:</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <source>Mirror:</source>
        <translation>Spiegeln:</translation>
    </message>
    <message>
        <source>Hor.</source>
        <translation>Hor.</translation>
    </message>
    <message>
        <source>Ver.</source>
        <translation>Ver.</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Lage:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForVia</name>
    <message>
        <source>Vias</source>
        <translation>Durchkontaktierungen</translation>
    </message>
    <message>
        <source>Diameter:</source>
        <translation>Durchmesser:</translation>
    </message>
    <message>
        <source>Drill:</source>
        <translation>Bohrung:</translation>
    </message>
    <message>
        <source>Thermal:</source>
        <translation>Wärmefalle:</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Drill pair:</source>
        <translation>Bohrpaar:</translation>
    </message>
    <message>
        <source>Mask:</source>
        <translation>Lötstopp:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForWire</name>
    <message>
        <source>Wire</source>
        <translation>Leiterbahn</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Comp mode:</source>
        <translation>Mischmodus:</translation>
    </message>
    <message>
        <source>Net:</source>
        <translation>Netz:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Net class:</source>
        <translation>Netzklasse:</translation>
    </message>
</context>
<context>
    <name>TPropertyText</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>TPropertyWidget</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
</TS>

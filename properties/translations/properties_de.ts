<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TCommandKind</name>
    <message>
        <source>Disconnect %1</source>
        <translation>Trennen: %1</translation>
    </message>
    <message>
        <source>bus entries</source>
        <translation>Busabzweige</translation>
    </message>
    <message>
        <source>Change value of %1</source>
        <translation>Wert ändern: %1</translation>
    </message>
    <message>
        <source>components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Switch a layer of %1</source>
        <translation>Lage umschalten: %1</translation>
    </message>
    <message>
        <source>keepouts</source>
        <translation>Sperrflächen</translation>
    </message>
    <message>
        <source>Change lock of %1</source>
        <translation>Sperre ändern: %1</translation>
    </message>
    <message>
        <source>parts and packages</source>
        <translation>Bauteile und Gehäuse</translation>
    </message>
    <message>
        <source>Change mask clearance of %1</source>
        <translation>Lötstoppabstand ändern: %1</translation>
    </message>
    <message>
        <source>pads and vias</source>
        <translation>Pads und Vias</translation>
    </message>
    <message>
        <source>Switch mask opening of %1</source>
        <translation>Lötstoppöffnung umschalten: %1</translation>
    </message>
    <message>
        <source>Change paste clearance of %1</source>
        <translation>Lotpastenabstand ändern: %1</translation>
    </message>
    <message>
        <source>pads</source>
        <translation>Pads</translation>
    </message>
    <message>
        <source>Switch paste of %1</source>
        <translation>Lotpaste umschalten: %1</translation>
    </message>
    <message>
        <source>Change net class of %1</source>
        <translation>Netzklasse ändern: %1</translation>
    </message>
    <message>
        <source>a net</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Change net colour of %1</source>
        <translation>Netzfarbe ändern: %1</translation>
    </message>
    <message>
        <source>Change net priority of %1</source>
        <translation>Netzpriorität ändern: %1</translation>
    </message>
    <message>
        <source>nets</source>
        <translation>Netze</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Umbenennen: %1</translation>
    </message>
    <message>
        <source>Rename a fragment of %1</source>
        <translation>Teilstück umbenennen: %1</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Ändern: %1</translation>
    </message>
    <message>
        <source>net ties</source>
        <translation>Netzverbinder</translation>
    </message>
    <message>
        <source>Switch name of %1</source>
        <translation>Namen ein- oder ausblenden: %1</translation>
    </message>
    <message>
        <source>Change layer of %1</source>
        <translation>Lage ändern: %1</translation>
    </message>
    <message>
        <source>Change pad size of %1</source>
        <translation>Padgröße ändern: %1</translation>
    </message>
    <message>
        <source>Change wire width of %1</source>
        <translation>Leiterbreite ändern: %1</translation>
    </message>
    <message>
        <source>Change symbol of %1</source>
        <translation>Symbol ändern: %1</translation>
    </message>
    <message>
        <source>Add a node to %1</source>
        <translation>Knoten hinzufügen: %1</translation>
    </message>
    <message>
        <source>the outline</source>
        <translation>Umrisslinie</translation>
    </message>
    <message>
        <source>Remove a node from %1</source>
        <translation>Knoten entfernen: %1</translation>
    </message>
    <message>
        <source>Change side of %1</source>
        <translation>Seite ändern: %1</translation>
    </message>
    <message>
        <source>packages</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>Verbinden: %1</translation>
    </message>
    <message>
        <source>Change width of %1</source>
        <translation>Breite ändern: %1</translation>
    </message>
    <message>
        <source>Change height of %1</source>
        <translation>Höhe ändern: %1</translation>
    </message>
    <message>
        <source>Renumber %1</source>
        <translation>Neu nummerieren: %1</translation>
    </message>
    <message>
        <source>Change shape of %1</source>
        <translation>Form ändern: %1</translation>
    </message>
    <message>
        <source>Change type of %1</source>
        <translation>Typ ändern: %1</translation>
    </message>
    <message>
        <source>parts</source>
        <translation>Bauteile</translation>
    </message>
    <message>
        <source>pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>Switch number of %1</source>
        <translation>Nummern ein- oder ausblenden: %1</translation>
    </message>
    <message>
        <source>Change style of %1</source>
        <translation>Darstellung ändern: %1</translation>
    </message>
    <message>
        <source>Change length of %1</source>
        <translation>Länge ändern: %1</translation>
    </message>
    <message>
        <source>Change swap group of %1</source>
        <translation>Tauschgruppe ändern: %1</translation>
    </message>
    <message>
        <source>ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Change clearance to etch of %1</source>
        <translation>Abstand zum Kupfer ändern: %1</translation>
    </message>
    <message>
        <source>pours</source>
        <translation>Kupferflächen</translation>
    </message>
    <message>
        <source>Change clearance to border of %1</source>
        <translation>Abstand zum Rand ändern: %1</translation>
    </message>
    <message>
        <source>Change clearance to pour of %1</source>
        <translation>Abstand zu Flächen ändern: %1</translation>
    </message>
    <message>
        <source>Change line width of %1</source>
        <translation>Linienbreite ändern: %1</translation>
    </message>
    <message>
        <source>Change minimum area of %1</source>
        <translation>Kleinste Fläche ändern: %1</translation>
    </message>
    <message>
        <source>Change thermal line of %1</source>
        <translation>Stege der Wärmefallen ändern: %1</translation>
    </message>
    <message>
        <source>Change thermal isolation of %1</source>
        <translation>Isolation der Wärmefallen ändern: %1</translation>
    </message>
    <message>
        <source>Change priority of %1</source>
        <translation>Priorität ändern: %1</translation>
    </message>
    <message>
        <source>Change net of %1</source>
        <translation>Netz ändern: %1</translation>
    </message>
    <message>
        <source>Change filling of %1</source>
        <translation>Füllung ändern: %1</translation>
    </message>
    <message>
        <source>Switch unconnected copper of %1</source>
        <translation>Unverbundenes Kupfer umschalten: %1</translation>
    </message>
    <message>
        <source>Switch thermal spokes of %1</source>
        <translation>Wärmefallen umschalten: %1</translation>
    </message>
    <message>
        <source>drawings</source>
        <translation>Zeichnungselemente</translation>
    </message>
    <message>
        <source>Change line style of %1</source>
        <translation>Linienart ändern: %1</translation>
    </message>
    <message>
        <source>Change colour of %1</source>
        <translation>Farbe ändern: %1</translation>
    </message>
    <message>
        <source>items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Change size of %1</source>
        <translation>Größe ändern: %1</translation>
    </message>
    <message>
        <source>rectangles</source>
        <translation>Rechtecke</translation>
    </message>
    <message>
        <source>Rename part %1</source>
        <translation>Bauteil %1 umbenennen</translation>
    </message>
    <message>
        <source>Rename page %1</source>
        <translation>Seite %1 umbenennen</translation>
    </message>
    <message>
        <source>Open symbol of %1</source>
        <translation>Symbol öffnen: %1</translation>
    </message>
    <message>
        <source>a part</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>Open page %1</source>
        <translation>Seite %1 öffnen</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Change font kind of %1</source>
        <translation>Schriftart ändern: %1</translation>
    </message>
    <message>
        <source>texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Change font of %1</source>
        <translation>Schrift ändern: %1</translation>
    </message>
    <message>
        <source>Change font size of %1</source>
        <translation>Schriftgröße ändern: %1</translation>
    </message>
    <message>
        <source>Change alignment of %1</source>
        <translation>Ausrichtung ändern: %1</translation>
    </message>
    <message>
        <source>Change angle of %1</source>
        <translation>Winkel ändern: %1</translation>
    </message>
    <message>
        <source>Switch bold of %1</source>
        <translation>Fettschrift umschalten: %1</translation>
    </message>
    <message>
        <source>Switch italic of %1</source>
        <translation>Kursivschrift umschalten: %1</translation>
    </message>
    <message>
        <source>Mirror %1 horizontally</source>
        <translation>Waagerecht spiegeln: %1</translation>
    </message>
    <message>
        <source>Mirror %1 vertically</source>
        <translation>Senkrecht spiegeln: %1</translation>
    </message>
    <message>
        <source>Change diameter of %1</source>
        <translation>Durchmesser ändern: %1</translation>
    </message>
    <message>
        <source>vias</source>
        <translation>Vias</translation>
    </message>
    <message>
        <source>Change drill of %1</source>
        <translation>Bohrung ändern: %1</translation>
    </message>
    <message>
        <source>vias and pads</source>
        <translation>Vias und Pads</translation>
    </message>
    <message>
        <source>Change drill pair of %1</source>
        <translation>Bohrpaar ändern: %1</translation>
    </message>
    <message>
        <source>Change thermal connection of %1</source>
        <translation>Wärmefalle ändern: %1</translation>
    </message>
    <message>
        <source>wires</source>
        <translation>Leiter</translation>
    </message>
    <message>
        <source>a wire</source>
        <translation>Leiter</translation>
    </message>
</context>
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
    <name>TPropertySetForBus</name>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
    <name>TPropertySetForNet</name>
    <message>
        <source>Net</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Nets</source>
        <translation>Netze</translation>
    </message>
    <message>
        <source>Net:</source>
        <translation>Netz:</translation>
    </message>
    <message>
        <source>Net class:</source>
        <translation>Netzklasse:</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Stufe:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
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
    <name>TPropertySetForPart</name>
    <message>
        <source>Part</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Bauteile</translation>
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
        <source>Name:</source>
        <translation>Name:</translation>
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
        <source>Swap:</source>
        <translation>Tauschgruppe:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPin</name>
    <message>
        <source>Pin</source>
        <translation>Pin</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nummer:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Passiv</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Bidirectional</source>
        <translation>Bidirektional</translation>
    </message>
    <message>
        <source>Hi-Z</source>
        <translation>Hochohmig</translation>
    </message>
    <message>
        <source>Open Collector</source>
        <translation>Offener Kollektor</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Versorgung</translation>
    </message>
    <message>
        <source>No connect</source>
        <translation>Nicht angeschlossen</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Darstellung:</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Inverse</source>
        <translation>Invertiert</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Lang</translation>
    </message>
    <message>
        <source>Swap:</source>
        <translation>Tauschgruppe:</translation>
    </message>
</context>
<context>
    <name>TPropertySetForPort</name>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
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
    <name>TPropertySetForTag</name>
    <message>
        <source>Tags</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Font type:</source>
        <translation>Schrifttyp:</translation>
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
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
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

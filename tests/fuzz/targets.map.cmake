orv_fuzz(KmlFile)
orv_fuzz(MapItem)
orv_fuzz(MapOrvFile)
orv_fuzz(ShapeFile)

orv_fuzz(DateTool)
orv_fuzz(NameConv)
orv_fuzz(Zlib)

orv_fuzz(DomainText)
orv_fuzz(RegionFile)

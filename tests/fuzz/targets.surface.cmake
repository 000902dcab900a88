orv_fuzz(CityFile)
orv_fuzz(CityQuery)

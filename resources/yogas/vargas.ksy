<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of the divisional charts</nm>
  <au>Kestrav</au>
  <yg>
    <op>1</op>
    <tl>Vargottama ascendant</tl>
    <rl>Vargottama,,Asc</rl>
    <in>A firm constitution; what is promised is kept.</in>
    <cm>Brihat Jataka, chapter 1 (definitions); Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vargottama Moon</tl>
    <rl>Vargottama,,Moo</rl>
    <in>A mind at one with itself; fame and support.</in>
    <cm>Brihat Jataka, chapter 1 (definitions); Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Three vargottama planets</tl>
    <rl>Vargottama,,min3.pla</rl>
    <in>Several powers of life are firm: steady rise.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Rasi</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vargottama lord of the ascendant in a kendra</tl>
    <rl>Vargottama,,L1\InHouse,,L1,ken</rl>
    <in>Purpose and strength agree.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Rasi</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the ascendant strong in the navamsha</tl>
    <rl>*-1,Nava,Nava,,,,50,,R.L1,own,exa</rl>
    <in>Inner strength grows with age.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the tenth strong in the navamsha</tl>
    <rl>*-1,Nava,Nava,,,,50,,R.L10,own,exa\InHouse,!,L10,dus</rl>
    <in>Work has a firm core and lasts.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Rasi,Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the tenth strong in the dashamsha</tl>
    <rl>*-1,Dasa,Dasa,,,,50,,R.L10,own,exa</rl>
    <in>Success and authority in the profession.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Dasa</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the fifth strong in the saptamsha</tl>
    <rl>*-1,Sapt,Sapt,,,,50,,R.L5,own,exa</rl>
    <in>Joy and pride in children.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Sapt</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the ninth strong in the dwadashamsha</tl>
    <rl>*-1,Dwad,Dwad,,,,50,,R.L9,own,exa</rl>
    <in>Blessing of parents and forebears.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Dwad</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus strong in the navamsha with a good seventh</tl>
    <rl>*-1,Nava,Nava,Ven,,,50,,own,exa\*-1,Nava,Nava,Ven,,,2,,kentri</rl>
    <in>A happy bond and a fine taste.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics in kendras of the navamsha</tl>
    <rl>*-1,Nava,Nava,,,,2,,min2.Mer+Jup+Ven,ken</rl>
    <in>Marriage and inner life are well supported.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics upon the seventh of the navamsha</tl>
    <rl>*-1,Nava,Nava,,,,2,,min2.Sun+Mar+Sat,7</rl>
    <in>Marriage is a field of trial.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja yoga in the navamsha</tl>
    <rl>*-1,Nava,Nava,,,,33,,L9,L10</rl>
    <in>The combination of duty and fortune repeats in the navamsha and bears late fruit.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja yoga in the dashamsha</tl>
    <rl>*-1,Dasa,Dasa,,,,33,,L9,L10</rl>
    <in>Position and merit join in the career.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Dasa</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Exalted in the rashi, fallen in the navamsha</tl>
    <rl>Dignity,,Sun,exa\*-1,Nava,Nava,Sun,,,50,,deb\OR\Dignity,,Moo,exa\*-1,Nava,Nava,Moo,,,50,,deb\OR\Dignity,,Mar,exa\*-1,Nava,Nava,Mar,,,50,,deb\OR\Dignity,,Mer,exa\*-1,Nava,Nava,Mer,,,50,,deb\OR\Dignity,,Jup,exa\*-1,Nava,Nava,Jup,,,50,,deb\OR\Dignity,,Ven,exa\*-1,Nava,Nava,Ven,,,50,,deb\OR\Dignity,,Sat,exa\*-1,Nava,Nava,Sat,,,50,,deb</rl>
    <in>Outward strength is hollow; great promise, smaller results.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Rasi,Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Strong in rashi, navamsha and drekkana</tl>
    <rl>Dignity,,Sun,own,exa\*-1,Drek,Drek,Sun,,,50,,own,exa\*-1,Nava,Nava,Sun,,,50,,own,exa\OR\Dignity,,Moo,own,exa\*-1,Drek,Drek,Moo,,,50,,own,exa\*-1,Nava,Nava,Moo,,,50,,own,exa\OR\Dignity,,Mar,own,exa\*-1,Drek,Drek,Mar,,,50,,own,exa\*-1,Nava,Nava,Mar,,,50,,own,exa\OR\Dignity,,Mer,own,exa\*-1,Drek,Drek,Mer,,,50,,own,exa\*-1,Nava,Nava,Mer,,,50,,own,exa\OR\Dignity,,Jup,own,exa\*-1,Drek,Drek,Jup,,,50,,own,exa\*-1,Nava,Nava,Jup,,,50,,own,exa\OR\Dignity,,Ven,own,exa\*-1,Drek,Drek,Ven,,,50,,own,exa\*-1,Nava,Nava,Ven,,,50,,own,exa\OR\Dignity,,Sat,own,exa\*-1,Drek,Drek,Sat,,,50,,own,exa\*-1,Nava,Nava,Sat,,,50,,own,exa</rl>
    <in>A planet strong in three divisions carries its matters to a high place, as the texts say of the Uttama division.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Rasi,Drek,Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ascendant of the navamsha held by its lord or Jupiter</tl>
    <rl>*-1,Nava,Nava,,,,2,,L1,1\OR\*-1,Nava,Nava,,,,2,,Jup,1</rl>
    <in>Character is sound at the core.</in>
    <cm>Traditional practice of the divisional charts.</cm>
    <vs>Nava</vs>
    <ch>Divisional charts</ch>
  </yg>
</ksy>

<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas after Jaimini</nm>
  <au>Kestrav</au>
  <intro>Chara karakas and arudhas follow the settings of the program.</intro>
  <yg>
    <op>1</op>
    <tl>Atma and Amatya karaka</tl>
    <rl>With,,AK,AmK\OR\Aspect,,AK,AmK,sign</rl>
    <in>Will and counsel work together: rise to authority.</in>
    <cm>Traditional in the school of Jaimini.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Atma and Putra karaka</tl>
    <rl>With,,AK,PK\OR\Aspect,,AK,PK,sign</rl>
    <in>Talent and purpose meet; recognition through works of the mind.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Atma karaka and lord of the fifth</tl>
    <rl>With,,AK,L5\OR\Aspect,,AK,L5,sign</rl>
    <in>Merit of the past upholds the soul's aim.</in>
    <cm>Traditional in the school of Jaimini.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Atma and Dara karaka</tl>
    <rl>With,,AK,DK\OR\Aspect,,AK,DK,sign</rl>
    <in>Marriage or alliance is part of the path; rise with a partner.</in>
    <cm>Traditional in the school of Jaimini.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon and Venus for vehicles</tl>
    <rl>With,,Moo,Ven\OR\Mutual,,Moo,Ven,sign\OR\InHouse,,Ven,Moo,3\OR\InHouse,,Moo,Ven,3</rl>
    <in>Vehicles, comfort and signs of rank.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics in 2, 4 and 5 from the Atma karaka</tl>
    <rl>InHouse,,any.ben,AK,2\InHouse,,any.ben,AK,4\InHouse,,any.ben,AK,5</rl>
    <in>Marks of kingship: speech, home and mind serve the soul.</in>
    <cm>Traditional in the school of Jaimini.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in 3 and 6 from the Atma karaka</tl>
    <rl>InHouse,,any.mal,AK,3\InHouse,,any.mal,AK,6</rl>
    <in>Wins by courage; leads in contest.</in>
    <cm>Traditional in the school of Jaimini.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: raja and wealth</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gains of the arudha</tl>
    <rl>InHouse,,any.ben,ArL,11\InHouse,,no.gra,ArL,12</rl>
    <in>Income is larger than outlay; gains in good ways.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Losses of the arudha</tl>
    <rl>InHouse,,any.mal,ArL,12\InHouse,,no.gra,ArL,11</rl>
    <in>Outlay by force, fines or disputes runs ahead of income.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Rahu or Ketu in the seventh from the arudha</tl>
    <rl>InHouse,,any.nod,ArL,7</rl>
    <in>Ailments of the belly or sudden turns in dealings.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefic in the seventh from the arudha</tl>
    <rl>InHouse,,any.Moo+Jup+Ven,ArL,7</rl>
    <in>Prosperity through others; riches that are seen.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dara pada in a good place from the arudha</tl>
    <rl>InHouse,,a7,ArL,kentri</rl>
    <in>Wealth and good understanding between partners.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dara pada in a bad place from the arudha</tl>
    <rl>InHouse,,a7,ArL,dus</rl>
    <in>Partners work against each other; means suffer.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in 3 and 6 from the arudha</tl>
    <rl>InHouse,,any.mal,ArL,3\InHouse,,any.mal,ArL,6</rl>
    <in>Valour: conquers opponents and leads.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics in 3 and 6 from the arudha</tl>
    <rl>InHouse,,any.ben,ArL,3\InHouse,,any.ben,ArL,6</rl>
    <in>Gentle in contest; gives way where others fight.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 3.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefic in the second from the upapada</tl>
    <rl>InHouse,,any.ben,UpL,2\InHouse,,no.mal,UpL,2</rl>
    <in>Marriage is lasting and of good repute.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 4.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefic in the second from the upapada</tl>
    <rl>InHouse,,any.mal,UpL,2\InHouse,,no.ben,UpL,2</rl>
    <in>The bond of marriage is threatened; loss of the partner or renunciation.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 4.</cm>
    <vs>Rasi</vs>
    <ch>Jaimini: arudhas</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sun in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Sun,,,2,,AK,1</rl>
    <in>Service of the state or of the great.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mars in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Mar,,,2,,AK,1</rl>
    <in>Metals, fire, arms or chemistry give the living.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mercury in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Mer,,,2,,AK,1</rl>
    <in>Trade, crafts, weaving or law.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Jupiter in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Jup,,,2,,AK,1</rl>
    <in>Knowledge and ritual; one who knows the scriptures.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Ven,,,2,,AK,1</rl>
    <in>Office, pleasure and a long love of life.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Saturn in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Sat,,,2,,AK,1</rl>
    <in>A well-known way of work, followed to the end.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Rahu in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Rah,,,2,,AK,1</rl>
    <in>Bows, machines, poisons or medicine.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ketu in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Ket,,,2,,AK,1</rl>
    <in>Large animals, hidden trades or mathematics.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon and Venus in the karakamsha</tl>
    <rl>*-1,Nava,Nava,Moo,,,2,,AK,1\*-1,Nava,Nava,Ven,,,2,,AK,1</rl>
    <in>Enjoyment and learning together; lives by knowledge.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefic in the fourth from the karakamsha</tl>
    <rl>*-1,Nava,Nava,,,,2,,any.Moo+Ven,AK,4</rl>
    <in>A fine house; comfort at home.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ketu in the twelfth from the karakamsha</tl>
    <rl>*-1,Nava,Nava,Ket,,,2,,AK,12</rl>
    <in>The soul tends to release.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malefics in the third from the karakamsha</tl>
    <rl>*-1,Nava,Nava,,,,2,,any.Sun+Mar+Sat+Rah+Ket,AK,3</rl>
    <in>Brave, enduring and ready to act.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon and Jupiter in the fifth from the karakamsha</tl>
    <rl>*-1,Nava,Nava,Moo,,,2,,AK,5\*-1,Nava,Nava,Jup,,,2,,AK,5</rl>
    <in>A writer of books; knowledge with feeling.</in>
    <cm>Jaimini Sutras, adhyaya 1, pada 2.</cm>
    <vs>Nava</vs>
    <ch>Jaimini: karakamsha</ch>
  </yg>
</ksy>

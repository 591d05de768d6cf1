<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of renunciation</nm>
  <au>Kestrav</au>
  <intro>Four or more planets in one sign make an ascetic; the strongest of them tells of which kind.</intro>
  <yg>
    <op>1</op>
    <tl>Pravrajya of the Sun: Vanyashana</tl>
    <rl>Cluster,,pla,4\Strongest,,Sun,cluP,shad</rl>
    <in>Withdraws to hills and riverbanks, keeps the fire of penance.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of the Moon: Vriddha</tl>
    <rl>Cluster,,pla,4\Strongest,,Moo,cluP,shad</rl>
    <in>Follows a teacher of devotion, lives by what is given.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of Mars: Shakya</tl>
    <rl>Cluster,,pla,4\Strongest,,Mar,cluP,shad</rl>
    <in>Takes a robe and a rule, of hot zeal.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of Mercury: Ajivika</tl>
    <rl>Cluster,,pla,4\Strongest,,Mer,cluP,shad</rl>
    <in>Goes by argument and sacred speech, lives among people.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of Jupiter: Bhikshu</tl>
    <rl>Cluster,,pla,4\Strongest,,Jup,cluP,shad</rl>
    <in>A learned mendicant, with staff and study.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of Venus: Charaka</tl>
    <rl>Cluster,,pla,4\Strongest,,Ven,cluP,shad</rl>
    <in>A wanderer who heals and serves.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pravrajya of Saturn: Nirgrantha</tl>
    <rl>Cluster,,pla,4\Strongest,,Sat,cluP,shad</rl>
    <in>Gives up everything, even clothing; hard penance.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the Moon's sign seen by Saturn alone</tl>
    <rl>Aspect,,Sat,D.Moo\Aspect,,no.pla-Sat,D.Moo</rl>
    <in>A mind drawn away from the world, set on one thing.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of the Moon's sign sees Saturn alone</tl>
    <rl>Aspect,,D.Moo,Sat\Aspect,,no.pla,D.Moo</rl>
    <in>A cool and detached turn of mind; seeks a rule of life.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Moon in Saturn's drekkana under Saturn</tl>
    <rl>*-1,Drek,Drek,,,,44,,Moo,Sat\*-1,Nava,Nava,,,,44,,Moo,any.Mar+Sat\Aspect,,Sat,Moo</rl>
    <in>Renounces early, after grief or insight.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi,Drek,Nava</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Tirtha founder</tl>
    <rl>Aspect,,Sat,Asc\Aspect,,Sat,Moo\Aspect,,Sat,Jup\InHouse,,Jup,9</rl>
    <in>One who founds a school or a holy place.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Saturn alone in the ninth</tl>
    <rl>InHouse,,Sat,9\With,,no.pla,Sat\Aspect,,no.pla,Sat</rl>
    <in>Follows a discipline of his own, whatever the birth.</in>
    <cm>Brihat Jataka, chapter 15 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Four planets with the lord of 10 in a good house</tl>
    <rl>InHouse,,L10,kentri\With,,L10,min3.pla</rl>
    <in>Action itself becomes the path; a life given to a cause.</in>
    <cm>Phaladeepika, chapter 27 (ascetic yogas).</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ketu in the twelfth of good company</tl>
    <rl>InHouse,,Ket,12\Influences,,any.Mer+Jup+Ven,B12</rl>
    <in>A turn towards release and retreat.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Sannyasa</ch>
  </yg>
</ksy>
